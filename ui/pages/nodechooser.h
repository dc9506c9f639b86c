/// \file
/// From the answer of a bus search to the drive that the user chooses.
#ifndef VELBRIN_UI_NODECHOOSER_H
#define VELBRIN_UI_NODECHOOSER_H

#include "connection.h"

#include <QObject>
#include <QPointer>
#include <functional>

class NodeDialog;
class QuestionQueue;
class QWidget;

/// Offers the newest list only: two quick presses of "Connect to drive" bring two, and an older one that is still open,
/// or waits, makes way. User-interface thread.
class NodeChooser : public QObject
{
    Q_OBJECT

public:
    /// `lastAddress` tells the address that was connected last on the port that is being searched, 0 for none.
    NodeChooser(QWidget *window, QuestionQueue *questions, std::function<int()> lastAddress);

    void offer(const QList<NodeType> &nodes);

signals:
    void chosen(int address);
    void searchAgain();

private:
    void ask();

    QWidget *m_window;
    QuestionQueue *m_questions;
    std::function<int()> m_lastAddress;
    QList<NodeType> m_nodes;
    QPointer<NodeDialog> m_dialog;
    bool m_waits = false; ///< a question is in the queue already
};

#endif
