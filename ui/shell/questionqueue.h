/// \file
/// Questions that the program raises, one at a time.
#ifndef VELBRIN_UI_QUESTIONQUEUE_H
#define VELBRIN_UI_QUESTIONQUEUE_H

#include <QList>
#include <QObject>
#include <QTimer>
#include <functional>

class QWidget;

/// Runs a question as soon as no other box, message or popup is open, so that its default button never takes a key
/// that was meant for the other. Questions wait in order. User-interface thread.
class QuestionQueue : public QObject
{
    Q_OBJECT

public:
    /// What the user has just asked for (the list of drives found) does not wait for messages to be read first.
    enum class Asked { BySession, ByUser };

    /// `messages` is the window that shows messages; it belongs to the caller.
    explicit QuestionQueue(const QWidget *messages, QObject *parent = nullptr);

    void ask(const std::function<void()> &question, Asked asked = Asked::BySession);
    /// Drops what still waits.
    void clear() { m_questions.clear(); }

private:
    struct Question
    {
        std::function<void()> ask;
        Asked asked;
    };
    void runFirst();

    const QWidget *m_messages;
    QList<Question> m_questions;
    QTimer m_retry;
};

#endif
