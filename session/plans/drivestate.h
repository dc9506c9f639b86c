/// \file
/// What the status poll knows about the drive, and the plan of the poll: which registers it reads, in which items, and
/// where each return value goes.
#ifndef VELBRIN_SESSION_DRIVESTATE_H
#define VELBRIN_SESSION_DRIVESTATE_H

#include "queueitem.h"

#include <QMetaType>
#include <QString>
#include <QVector>
#include <array>
#include <chrono>

class Parameters;

/// Bits of the status register that more than its wording depends on.
constexpr qint32 statusBitRecovering = 4;
constexpr qint32 statusBitRun = 8;
constexpr qint32 statusBitEnabled = 16;
constexpr qint32 statusBitFaultStopped = 32;
constexpr qint32 statusBitTorqueOff = 128;
constexpr qint32 statusBitReady = 256;
constexpr qint32 statusBitBraking = 1024;
constexpr qint32 statusBitHoming = 2048;
constexpr qint32 statusBitPermanentStop = 32768;

/// How a line does. Counts since the program started.
struct LineMeter
{
    int exchanges = 0;
    int errors = 0;  ///< exchanges without a good reply
    int repeats = 0; ///< requests sent a second time, silently, because of that
    int strays = 0;  ///< times that something waited on the line where nothing should have
};

/// A snapshot of the drive, in display units where a unit is named. A plain value: the worker fills it, the wording
/// functions (statustexts.h) read it, Connection::statePolled hands it out.
struct DriveState
{
    quint32 sequence = 0;                         ///< counts the good polls of the program, from 1
    std::chrono::steady_clock::time_point when{}; ///< of the reply
    LineMeter line;

    // What the poll reads.
    qint32 statusRegister = 0;
    qint32 faultRegister = 0;
    qint32 digitalInputs = 0;
    qint32 controlInputs = 0;   ///< bits 0 enable, 1 and 2 positive and negative feed, 3 home switch, 4 clear faults
    qint32 softEnable = 0;      ///< bit 0
    double busVoltage = 0.0;    ///< V
    double outputCurrent = 0.0; ///< A
    double deviceTemperature = 0.0;  ///< degrees Celsius
    double actualCurrentLimit = 0.0; ///< A
    qint32 lastLimitReason = 0;      ///< code, see limitReasonText
    qint32 rawVelocity = 0;          ///< counts per control cycle
    qint32 position = 0;             ///< counts
    qint32 setpoint = 0;             ///< setpoint units
    double analogIn1 = 0.0;          ///< V, like the three that follow
    double analogIn2 = 0.0;
    double analogEncoderA = 0.0;
    double analogEncoderB = 0.0;
    qint32 faultLocation1 = 0;
    qint32 faultLocation2 = 0;
    qint32 scopeState = 0; ///< 0 when the recorder is idle or done
    std::array<qint32, 6> debugValues{};
    qint32 watchedValue = 0;

    // What the session knows besides.
    int deviceType = 0;               ///< type id, 0 when none is connected
    bool firmwareUpgradeMode = false; ///< then the poll reads the fault register only
    double feedbackResolution = 0.0;  ///< value of FBR, lines
    double limitSwitchFunction = 0.0; ///< not 0 when the feed-enable inputs can stop the drive
    int watchedAddress = 0;           ///< register shown under the faults; 0 for none
    bool debugValuesShown = false;

    /// By whatever enables this drive, command or input; also one that has taken the enable command and not acted yet.
    bool isEnabled() const { return has(statusBitEnabled) || isSoftEnabled(); }
    bool isSoftEnabled() const { return (softEnable & 1) != 0; } ///< the enable command is in effect
    bool isRunning() const { return has(statusBitRun); }         ///< the motor is powered
    bool isReady() const { return has(statusBitReady); }         ///< follows its setpoint
    bool isRecovering() const { return has(statusBitRecovering); }
    bool isBraking() const { return has(statusBitBraking); }
    bool isHoming() const { return has(statusBitHoming); }
    bool isFaultStopped() const { return has(statusBitFaultStopped); }
    bool isPermanentStop() const { return has(statusBitPermanentStop); } ///< until the next restart
    bool isTorqueOff() const { return has(statusBitTorqueOff); }         ///< the safe-torque-off input
    bool has(qint32 statusBit) const { return (statusRegister & statusBit) != 0; }
};
Q_DECLARE_METATYPE(DriveState)

/// Takes the settings that the wording depends on out of a parameter list: FBR, and LFS or (where the list has none)
/// LSF. A setting that the list lacks counts as 0.
void takeWordingSettings(const Parameters &list, DriveState &state);

/// Translated reason for the last current limit, e.g. "Peak current [MMC]"; "Unknown (n)" for a code that has none.
QString limitReasonText(int code);

/// The plan of one poll. The items walk the drive's return selector: select register 10, write 0 (4 bytes a return
/// value), select register 9, then one value item a register, each of which returns the register that it has just
/// named. The three items in front have return values too, so that 27 registers fill the 120 bytes of a reply: exactly
/// what there is to read with the debug values and a watched register. Any more go into a further exchange, which
/// begins with the same three items.
class StatusPoll
{
public:
    static constexpr int setUpItemCount = 3;
    static constexpr int maxRegisterCount = 27;

    /// Plans for `state.firmwareUpgradeMode`, `debugValuesShown` and `watchedAddress`; these may change in the session
    /// while the poll is on the line.
    explicit StatusPoll(const DriveState &state);

    /// Registers in the order of reading. In firmware-upgrade mode the fault register alone, whatever else is wanted.
    QVector<int> registers() const;
    /// The requests, one after the other. Each has as many return values as items, the first three of no interest.
    QVector<QVector<QueueItem>> exchanges() const;
    static QVector<QVector<QueueItem>> exchangesFor(const QVector<int> &registers);
    /// Stores the values of the registers in display units, and the watched address that they were read for. With
    /// another number of values it returns false and changes nothing.
    bool store(const QVector<qint32> &values, DriveState &state) const;

private:
    bool m_firmwareUpgradeMode;
    bool m_debugValues;
    int m_watchedAddress;
};

#endif
