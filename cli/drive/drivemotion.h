/// \file
/// Steps that move a drive, and those that stop it.
#ifndef VELBRIN_CLI_DRIVEMOTION_H
#define VELBRIN_CLI_DRIVEMOTION_H

#include "drivesteps.h"

#include <QStringList>

class DriveClient;
struct CommandLine;

/// Connects to a drive in normal mode and learns its state.
bool connectToMove(DriveClient &client, const CommandLine &line, Use use, QStringList &messages);

/// Enables the drive and waits until its motor is powered. When that does not happen the enable is taken back, so that
/// no drive starts later by itself, and `messages` says what keeps it from running.
bool enableDrive(DriveClient &client, QStringList &messages);

/// Disables the drive and waits until its state shows it; also when the command was interrupted, and through a new
/// opening of the port when there is no connection (any more). On failure messages() of the client tells in plain words
/// that the drive may still move.
bool disableDrive(DriveClient &client);

/// Disables the drive when it goes out of scope, however the command ends, unless told to leave it alone.
class DisableAtEnd
{
public:
    explicit DisableAtEnd(DriveClient &client);
    ~DisableAtEnd() { now(); }
    DisableAtEnd(const DisableAtEnd &) = delete;
    DisableAtEnd &operator=(const DisableAtEnd &) = delete;

    void release() { m_client = nullptr; }
    /// False when the drive has not confirmed it.
    bool now();

private:
    DriveClient *m_client;
};

/// Runs the test stimulus on the drive while it lives.
class RunningStimulus
{
public:
    /// Setpoints in setpoint units, how long each is held in s.
    struct Wave
    {
        int target1;
        double delay1;
        int target2;
        double delay2;
    };

    RunningStimulus(DriveClient &client, const Wave &wave);
    ~RunningStimulus();
    RunningStimulus(const RunningStimulus &) = delete;
    RunningStimulus &operator=(const RunningStimulus &) = delete;

private:
    DriveClient &m_client;
};

#endif
