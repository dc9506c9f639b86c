/// \file
/// What the panels of the drive's live state say, as values.
#ifndef DRIVEREADING_H
#define DRIVEREADING_H

#include <QString>
#include <QStringList>

/// The three panels of the drive's live state, as HTML.
struct LiveState
{
    QString inputs;
    QString status;
    QString faults;
};

/// All false, empty and 0 for a drive in firmware-upgrade mode, which has faults only.
struct DriveReading
{
    bool softEnabled = false; ///< the enable command is in effect
    bool enabled = false;     ///< by whatever enables this drive: command, input
    bool running = false;     ///< the motor is powered
    bool ready = false;       ///< follows its setpoint
    bool recovering = false;  ///< on its way to the setpoint after it was enabled
    bool braking = false;     ///< on its way to a stop
    bool homing = false;
    bool faultStopped = false;
    bool permanentStop = false; ///< until the next restart
    bool torqueOff = false;     ///< the safe-torque-off input

    QStringList faults;  ///< names of those that are active
    QStringList reasons; ///< what keeps it from running, with its state: "Phys enable (off)"
    int setpoint = 0;    ///< setpoint in use, setpoint units
    int position = 0;    ///< counts
};

DriveReading readPanels(const LiveState &live);

/// "Reason for inactivity: ..." or an empty text when the panels name none.
QString inactivityText(const DriveReading &drive);

#endif
