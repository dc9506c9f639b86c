#include "nodechooser.h"

#include "nodedialog.h"
#include "questionqueue.h"

NodeChooser::NodeChooser(QWidget *window, QuestionQueue *questions, std::function<int()> lastAddress)
    : QObject(window), m_window(window), m_questions(questions), m_lastAddress(std::move(lastAddress))
{
}

void NodeChooser::offer(const QList<NodeType> &nodes)
{
    m_nodes = nodes;
    if (m_dialog)
        m_dialog->reject();
    if (m_waits)
        return;
    m_waits = true;
    m_questions->ask([this] { ask(); }, QuestionQueue::Asked::ByUser);
}

void NodeChooser::ask()
{
    m_waits = false;
    NodeDialog dialog(m_nodes, m_lastAddress());
    dialog.setWindowIcon(m_window->windowIcon());
    m_dialog = &dialog;
    const int choice = dialog.exec();
    m_dialog = nullptr;
    if (choice == NodeDialog::SearchAgain)
        emit searchAgain();
    else if (choice == NodeDialog::Open && dialog.chosenAddress() != 0)
        emit chosen(dialog.chosenAddress());
}
