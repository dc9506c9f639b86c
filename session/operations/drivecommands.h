/// \file
/// Commands to the drive that are a write or two, and the pauses that some of them need.
#ifndef VELBRIN_SESSION_DRIVECOMMANDS_H
#define VELBRIN_SESSION_DRIVECOMMANDS_H

#include "operation.h"

class StimulusStream;
class StopService;

class DriveCommands : private Operation
{
public:
    DriveCommands(OperationContext &context, StopService &stops, StimulusStream &stream)
        : Operation(context), m_stops(stops), m_stream(stream)
    {
    }

    void clearFaults();
    void applyEnableState(const EnableRequest &request);
    void saveToFlash();
    void startHoming();
    void abortHoming();
    void stopStimulus();
    void setAbsoluteSetpoint(const SetpointRequest &request);
    void setIncrementalSetpoint(const SetpointRequest &request);
    void setZero();
    void restartDrive();
    void restartToDFU();
    /// The command alone, also to a drive that is not connected yet. Whether the drive took it.
    bool sendRestartToDFU();
    void waitForRestart();
    /// Of the connected drive: old ones cannot measure.
    void setCoreVersion(int version) { m_coreVersion = version; }
    void measure();

private:
    /// A write that acts: once only, and a refusal is told at once in these words.
    Reply writeCommand(int address, long value, const QString &refusal);
    void writeSetpoint(int address, int setpoint);
    void forgetMotion();
    bool measureMotor(long &result);

    StopService &m_stops;
    StimulusStream &m_stream;
    int m_coreVersion = 0;
};

#endif
