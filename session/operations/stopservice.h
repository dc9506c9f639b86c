/// \file
/// What stops a drive, and how sure it is that it did: also without a connection, and where enabling went wrong.
#ifndef VELBRIN_SESSION_STOPSERVICE_H
#define VELBRIN_SESSION_STOPSERVICE_H

#include "operation.h"

#include <optional>

class StopService : private Operation
{
public:
    using Clock = std::chrono::steady_clock;

    /// `poll` looks at the drive at once and returns whether it answered. Serves the context's pauses from now on.
    StopService(OperationContext &context, std::function<bool()> poll);
    ~StopService() { m_pauses.setStops({}); }
    StopService(const StopService &) = delete;
    StopService &operator=(const StopService &) = delete;

    /// Disables the connected drive.
    void disableDrive();
    /// How many disables have been sent: whoever is about to enable looks whether one came in between.
    int servedDisables() const { return m_servedDisables; }
    /// The port and address that a disable goes to while no drive is connected.
    void setTarget(const QString &portName, int nodeAddress);
    /// The same until a drive was connected, which then stays the target: a drive that cannot be identified can be told
    /// to stop all the same.
    void suggestTarget(const QString &portName, int nodeAddress);
    void disableWithoutConnection();
    /// In what was just polled: whether a disable took effect.
    void lookForDisable(const DriveState &state);

    /// From here on the drive may be enabled, and the outcome of an earlier disable is of no interest.
    void beginEnable();
    /// A drive whose enabling was not acknowledged may be enabled all the same, which nobody would know.
    void undoEnable();

    /// A connection ends: what waits for an answer gets none.
    void endConnection();
    /// A connection ended without the stop of its stream being acknowledged.
    void setStreamWasLost(bool lost) { m_streamWasLost = lost; }
    /// Behind the end of a connection. The session's own motion, and an enable that it could not take back, are not
    /// left to it: the port is opened once more. Nothing else disables a drive that the user has not told to.
    void stopWhatWasLeft();

private:
    bool serveWaitingDisable();
    void disableRestartingDrive(Clock::time_point deadline);
    void announceDisable(bool acknowledged);
    void announceDisableOutcome(DisableOutcome outcome);
    bool writeBothDisables();
    DisableOutcome disableAndReadBack();
    DisableOutcome readBackEnable();

    std::function<bool()> m_poll;
    std::optional<Clock::time_point> m_disableSent; ///< until its outcome was announced
    bool m_enableIsToBeUndone = false;              ///< by a new opening of the port, since the old one gave no answer
    bool m_streamWasLost = false;
    bool m_knowsDrive = false; ///< the target was connected
    int m_servedDisables = 0;
};

#endif
