#include "testingpage.h"

#include "applydesk.h"
#include "captureaid.h"
#include "connection.h"
#include "connectpage.h"
#include "editedfield.h"
#include "editedsettings.h"
#include "parameterpages.h"
#include "ui_testingpage.h"

#include <QDebug>
#include <algorithm>

TestingPage::TestingPage(QWidget *window, const Ui_TestingPage &form, Connection &session, const Helpers &helpers)
    : QObject(window), m_window(window), m_form(form), m_session(session), m_use(helpers)
{
    for (QWidget *widget : {static_cast<QWidget *>(form.stimuluspresets), static_cast<QWidget *>(form.ScopeDebug),
                            static_cast<QWidget *>(form.ScopeDebug2), static_cast<QWidget *>(form.scopeFluxCurrent),
                            static_cast<QWidget *>(form.scopeFluxVoltage), static_cast<QWidget *>(form.scopePWM1),
                            static_cast<QWidget *>(form.scopePWM2), static_cast<QWidget *>(form.scopePWM3)})
        widget->hide();
    connectPanels();
    buildAid();
}

void TestingPage::buildAid()
{
    m_aid = new CaptureAid(
        {m_form.captureControlsLayout, m_form.ScopeSampleRate, channels(), [this] { return moveTime(); }}, this);
    for (const QSpinBox *target : {m_form.stimulusTarget1, m_form.stimulusTarget2})
        connect(target, &QSpinBox::valueChanged, m_aid, &CaptureAid::refresh);
    const auto type = Qt::QueuedConnection; // from the worker
    connect(&m_session, &Connection::captureStateChanged, m_aid, &CaptureAid::captureStateChanged, type);
    connect(&m_session, &Connection::driveParametersChanged, m_aid, &CaptureAid::refresh, type);
    connect(m_aid, &CaptureAid::callOffAsked, this, [this] { m_session.command(Connection::TaskCallOffCapture); });
}

/// The longer of the moves to the two targets from where the setpoint is, with the drive's own limits, s; 0 outside
/// position control.
double TestingPage::moveTime() const
{
    const auto value = [this](const char *name) { return m_use.settings.drive().getParam(QLatin1String(name)).value; };
    const double divider = value("DIV");
    if (!m_use.settings.driveWasRead() || divider <= 0.0 || value("CM") != 0.0)
        return 0.0;
    const MoveLimits limits{value("MUL") / divider, value("CVL") / divider, value("CAL") / divider, value("PIF")};
    const double from = m_lastSetpoint.toDouble();
    return std::max(moveSeconds(m_form.stimulusTarget1->value() - from, limits),
                    moveSeconds(m_form.stimulusTarget2->value() - from, limits));
}

// The PWM channels come before the debug and flux channels, unlike on the page.
QVector<QCheckBox *> TestingPage::channels() const
{
    return {m_form.ScopeTorqRef, m_form.ScopeTorqMeas, m_form.ScopeVelRef,      m_form.ScopeVelMeas,
            m_form.ScopePosRef,  m_form.ScopePosMeas,  m_form.ScopePosFerror,   m_form.ScopeOutVoltage,
            m_form.ScopeHVBus,   m_form.scopePWM1,     m_form.scopePWM2,        m_form.scopePWM3,
            m_form.ScopeDebug,   m_form.ScopeDebug2,   m_form.scopeFluxCurrent, m_form.scopeFluxVoltage};
}

void TestingPage::connectPanels()
{
    const auto add = [this](QLabel *panel, QLabel *heading, void (Connection::*updated)(QString)) {
        m_panels.add(panel, heading);
        connect(
            &m_session, updated, &m_panels, [this, panel](const QString &html) { m_panels.show(panel, html); },
            Qt::QueuedConnection);
    };
    add(m_form.physInputStatus, m_form.physInputStatusl, &Connection::physInputsUpdated);
    add(m_form.statusRegister, m_form.statusRegisterl, &Connection::statusRegisterUpdated);
    add(m_form.faultRegister, m_form.faultRegisterl, &Connection::faultRegisterUpdated);
}

void TestingPage::showConnection(Reach reach)
{
    for (QWidget *button : {m_form.ScopeCaptureNow, m_form.setAbs1, m_form.setAbs2, m_form.setInc1, m_form.setInc2})
        enableByReach(button, reach);
    for (QWidget *control : {static_cast<QWidget *>(m_form.stimulusEnabled), static_cast<QWidget *>(m_form.setZero)})
        enableByReach(control, reach, false);
    m_form.clear_faults_2->setEnabled(reach != Reach::NoDrive);
    if (reach == Reach::NoDrive)
        showEnd();
    else
        showMaximumSampleRate();
}

void TestingPage::showEnd()
{
    m_panels.connectionEnded();
    if (!m_lastSetpoint.isEmpty())
        m_form.setpointNow->setText(tr("Setpoint last known: %1").arg(m_lastSetpoint));
    // Whatever ended the connection, the next drive must not start moving because of a tick that was left behind.
    if (m_form.stimulusEnabled->isChecked())
        stopStimulus();
}

void TestingPage::showMaximumSampleRate()
{
    const double rate = m_session.maxScopeSampleRate();
    qDebug() << "max rate" << rate;
    // The first item stands for "as fast as the drive can".
    m_form.ScopeSampleRate->setItemText(0, QString::number(rate) + QStringLiteral(" Hz"));
}

// --- Stimulus and setpoints ---------------------------------------------------------------------------------------

void TestingPage::sendStimulus()
{
    const bool running = m_form.stimulusEnabled->isChecked();
    m_session.setStimulus(m_form.stimulusTarget1->value(), m_form.stimulusDelay1->value(),
                          m_form.stimulusTarget2->value(), m_form.stimulusDelay2->value(), running);
    for (QPushButton *button : {m_form.setAbs1, m_form.setInc1, m_form.setAbs2, m_form.setInc2})
        button->setEnabled(!running && reachOf(m_session) == Reach::Firmware);
}

void TestingPage::stimulusTicked()
{
    // No motion to an old target in place of one that was typed and refused.
    if (m_form.stimulusEnabled->isChecked() && anyNumberRefused({m_form.stimulusTarget1, m_form.stimulusDelay1,
                                                                 m_form.stimulusTarget2, m_form.stimulusDelay2})) {
        m_form.stimulusEnabled->setChecked(false);
        return;
    }
    sendStimulus();
}

void TestingPage::stopStimulus()
{
    m_form.stimulusEnabled->setChecked(false);
    m_session.setStimulus(0.0, 1.0, 0.0, 1.0, false);
}

void TestingPage::sendSetpoint(Target target, Move move)
{
    const bool first = target == Target::First, absolute = move == Move::Absolute;
    const QPushButton *button =
        absolute ? (first ? m_form.setAbs1 : m_form.setAbs2) : (first ? m_form.setInc1 : m_form.setInc2);
    const QSpinBox *box = first ? m_form.stimulusTarget1 : m_form.stimulusTarget2;
    // The shortcuts reach the slots even when the buttons are disabled.
    if (!button->isEnabled())
        return;
    // Not the old target in place of one that was typed and refused.
    if (!commitEditedField(m_window) || anyNumberRefused({box}))
        return;
    const double from = m_lastSetpoint.toDouble(), value = box->value();
    m_request.motion = {CaptureMotion::Kind::Step, from, absolute ? value : from + value, 0.0, 0.0};
    m_session.setTargetSetpoint(box->value());
    m_session.command(absolute ? Connection::TaskSetAbsoluteSetpoint : Connection::TaskSetIncrementalSetpoint);
}

// No guard: what stops an axis always gets through.
void TestingPage::sendZero()
{
    stopStimulus();
    m_session.setTargetSetpoint(0);
    m_session.command(Connection::TaskSetAbsoluteSetpoint);
}

void TestingPage::setpointPolled(double setpoint)
{
    m_lastSetpoint = QString::number(setpoint);
    m_form.setpointNow->setText(tr("Setpoint now: %1").arg(m_lastSetpoint));
    m_aid->refresh();
}

void TestingPage::updateTargetLabels()
{
    m_form.TSR1r->setText(m_use.pages->setpointLabel(m_form.stimulusTarget1->value()));
    m_form.TSR2r->setText(m_use.pages->setpointLabel(m_form.stimulusTarget2->value()));
}

// --- Capture and plot ---------------------------------------------------------------------------------------------

void TestingPage::capture()
{
    if (!m_form.ScopeCaptureNow->isEnabled())
        return;
    // A running series is not interrupted by a question.
    if (!m_form.repeatCapture->isChecked() && m_use.apply->askToApply() == ApplyDesk::Answer::Stay)
        return;
    const double rate = m_form.ScopeSampleRate->currentText().section(QLatin1Char(' '), 0, 0).toDouble();
    QList<bool> selected;
    for (const QCheckBox *channel : channels())
        selected.append(channel->isChecked());
    m_request = {rate, m_form.captureTrigger->currentIndex(), {}, {}};
    if (m_form.stimulusEnabled->isChecked())
        m_request.motion = {CaptureMotion::Kind::SquareWave, double(m_form.stimulusTarget1->value()),
                            double(m_form.stimulusTarget2->value()), m_form.stimulusDelay1->value(),
                            m_form.stimulusDelay2->value()};
    m_session.setupCapture(rate, m_form.captureTrigger->currentIndex(), selected);
    m_session.command(Connection::TaskInitScope, true);
    m_session.checkErrors();
}

void TestingPage::showCaptureState(const QString &text)
{
    m_form.ScopeCaptureNow->setText(text);
}

void TestingPage::plot(const QList<CaptureData> &captures)
{
    emit captured(captureRecord(m_session, m_use.connect->lastAddress(), m_request, captures));
    if (m_form.repeatCapture->isChecked())
        capture();
}
