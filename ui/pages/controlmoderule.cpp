#include "controlmoderule.h"

#include "connection.h"
#include "editedsettings.h"
#include "questionqueue.h"

#include <QDebug>
#include <QMessageBox>
#include <QPushButton>
#include <cmath>

ControlModeRule::ControlModeRule(QWidget *window, Connection &session, const EditedSettings &settings,
                                 QuestionQueue *questions)
    : QObject(window), m_window(window), m_session(session), m_settings(settings), m_questions(questions)
{
}

void ControlModeRule::modeChanged(int newMode)
{
    if (!m_session.deviceHasCapability(Connection::CapControlModeChange))
        return;
    if (m_answer == Answer::Always) {
        m_session.command(Connection::TaskSetZero);
        return; // answered for good: a second reset through the question would add nothing
    }
    const double oneRevolution = 4 * m_settings.drive().getParam(QStringLiteral("FBR")).value;
    if (m_answer == Answer::Ask && newMode == 0 && std::abs(m_session.positionFeedback()) > oneRevolution)
        m_questions->ask([this] { ask(); });
}

void ControlModeRule::ask()
{
    if (!m_session.isConnected())
        return;
    QMessageBox box(QMessageBox::Question, tr("Velbrin"), tr("Drive control mode changed to position control "),
                    QMessageBox::NoButton, m_window);
    box.setInformativeText(tr("Current position is %1, thus using setpoint commands may cause unexpected motion. Do "
                              "you want to reset position feedback and setpoint values to zero?")
                               .arg(QString::number(double(m_session.positionFeedback()))));
    QPushButton *keep = box.addButton(tr("Don't reset"), QMessageBox::RejectRole);
    const QPushButton *reset = box.addButton(tr("Reset"), QMessageBox::AcceptRole);
    const QPushButton *never = box.addButton(tr("Never reset"), QMessageBox::RejectRole);
    const QPushButton *always = box.addButton(tr("Always reset"), QMessageBox::AcceptRole);
    box.setDefaultButton(keep);
    box.setEscapeButton(keep);
    box.exec();
    qDebug() << "choice" << (box.clickedButton() ? box.clickedButton()->text() : QString());
    if (box.clickedButton() == never)
        m_answer = Answer::Never;
    if (box.clickedButton() == always)
        m_answer = Answer::Always;
    if (box.clickedButton() == reset || box.clickedButton() == always)
        m_session.command(Connection::TaskSetZero);
}
