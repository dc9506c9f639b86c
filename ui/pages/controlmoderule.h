/// \file
/// What happens when the drive changes its control mode by itself: a question, once or for good.
#ifndef VELBRIN_UI_CONTROLMODERULE_H
#define VELBRIN_UI_CONTROLMODERULE_H

#include <QObject>

class Connection;
class EditedSettings;
class QuestionQueue;
class QWidget;

/// Offers to reset position and setpoint when a drive comes back to position control away from zero. "Never" and
/// "Always" hold for this run. Of the session it asks for capability and position, and sends the reset.
/// User-interface thread.
class ControlModeRule : public QObject
{
    Q_OBJECT

public:
    ControlModeRule(QWidget *window, Connection &session, const EditedSettings &settings, QuestionQueue *questions);

    void modeChanged(int newMode);

private:
    void ask();

    QWidget *m_window;
    Connection &m_session;
    const EditedSettings &m_settings;
    QuestionQueue *m_questions;
    enum class Answer { Ask, Never, Always } m_answer = Answer::Ask;
};

#endif
