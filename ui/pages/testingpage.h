/// \file
/// The Testing page: stimulus and single setpoints, captures and their plots, and the panels of the drive's state.
#ifndef VELBRIN_UI_TESTINGPAGE_H
#define VELBRIN_UI_TESTINGPAGE_H

#include "capturerecord.h"
#include "statepanels.h"

#include <QList>
#include <QObject>

class ApplyDesk;
class CaptureAid;
class ConnectPage;
class Connection;
class EditedSettings;
class ParameterPages;
class QCheckBox;
class QPushButton;
class QSpinBox;
class Ui_TestingPage;
enum class Reach;

/// Nothing on this page moves a drive but by the user's own act: a tick left behind is taken back when the connection
/// ends. Of the session it uses stimulus, setpoints and the scope. User-interface thread.
class TestingPage : public QObject
{
    Q_OBJECT

public:
    /// What the page works with beside its own controls.
    struct Helpers
    {
        const ParameterPages *pages; ///< for setpoints in machine units
        ApplyDesk *apply;            ///< asks before a capture of settings that are not applied
        const ConnectPage *connect;  ///< knows the drive's address
        const EditedSettings &settings;
    };
    TestingPage(QWidget *window, const Ui_TestingPage &form, Connection &session, const Helpers &helpers);

    // Stimulus and setpoints
    void sendStimulus();
    void stimulusTicked();
    void stopStimulus();
    enum class Target { First, Second };
    enum class Move { Absolute, Increment };
    void sendSetpoint(Target target, Move move);
    void sendZero();
    void setpointPolled(double setpoint);
    void updateTargetLabels();

    // Capture and plot
    void capture();
    void showCaptureState(const QString &text);
    void plot(const QList<CaptureData> &captures);

    void showConnection(Reach reach);
    CaptureAid *captureAid() const { return m_aid; }
    /// The panels as plain text, one below the other.
    QString deviceState() const { return m_panels.plainText(); }

signals:
    void captured(const CaptureRecord &record);

private:
    void connectPanels();
    void buildAid();
    /// In channel order.
    QVector<QCheckBox *> channels() const;
    double moveTime() const;
    void showEnd();
    void showMaximumSampleRate();

    QWidget *m_window;
    const Ui_TestingPage &m_form;
    Connection &m_session;
    Helpers m_use;
    StatePanels m_panels;
    CaptureAid *m_aid = nullptr;
    CaptureRequest m_request; ///< of the capture that waits or is being read, with the motion since it was armed
    QString m_lastSetpoint;   ///< as polled last, empty before the first poll
};

#endif
