/// \file
/// What "capture" was asked for: a plain value, taken from the command line and checked without a drive.
#ifndef VELBRIN_CLI_CAPTUREORDER_H
#define VELBRIN_CLI_CAPTUREORDER_H

#include "capturefiles.h"
#include "drivemotion.h"

#include <QList>
#include <QString>

#include <optional>

struct CommandLine;

struct CaptureOrder
{
    QList<bool> channels;       ///< of the sixteen, in their order
    int channelCount = 0;       ///< selected ones
    std::optional<double> rate; ///< Hz; the drive's highest if none
    int trigger = 0;            ///< row of the trigger list: 0 rise, 1 change, 2 fault, 3 now
    std::optional<int> step;    ///< setpoint units
    bool isIncremental = false; ///< the step is added to the setpoint in use
    std::optional<RunningStimulus::Wave> stimulus;
    std::optional<double> timeOut; ///< s, from arming until the recorder is full
    bool enables = false;
    CaptureFiles::Columns columns = CaptureFiles::Columns::Semicolons;

    bool excites() const { return step.has_value() || stimulus.has_value(); }
};

/// The order, or what is wrong with the command line in `problem`.
CaptureOrder captureOrder(const CommandLine &line, QString &problem);

/// The keys of all sixteen channels, "torqueref, torquemeas, ...".
QString channelKeys();

/// Sample rate in Hz that the recorder really takes for an order, and the time in s that it needs to fill.
double effectiveRate(const CaptureOrder &order, double baseRate);
double recordingTime(const CaptureOrder &order, double baseRate);

#endif
