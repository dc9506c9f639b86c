#include "questionqueue.h"

#include <QApplication>
#include <QWidget>

namespace {
constexpr int retryMs = 100;
}

QuestionQueue::QuestionQueue(const QWidget *messages, QObject *parent) : QObject(parent), m_messages(messages)
{
    m_retry.setInterval(retryMs);
    connect(&m_retry, &QTimer::timeout, this, &QuestionQueue::runFirst);
}

void QuestionQueue::ask(const std::function<void()> &question, Asked asked)
{
    m_questions.append({question, asked});
    m_retry.start();
    runFirst();
}

void QuestionQueue::runFirst()
{
    if (m_questions.isEmpty()) {
        m_retry.stop();
        return;
    }
    const bool messageInTheWay = m_messages->isVisible() && m_questions.first().asked == Asked::BySession;
    if (!QApplication::activeModalWidget() && !QApplication::activePopupWidget() && !messageInTheWay)
        m_questions.takeFirst().ask();
}
