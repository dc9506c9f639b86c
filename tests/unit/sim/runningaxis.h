/// \file
/// A drive on the bench whose axis is enabled and watched.
#ifndef VELBRIN_TESTS_RUNNINGAXIS_H
#define VELBRIN_TESTS_RUNNINGAXIS_H

#include "drivebench.h"

class RunningAxis : public DriveBench
{
protected:
    bool has(std::int32_t statusBit) const { return drive.read(sim::reg::Status) & statusBit; }
    std::int32_t faults() const { return drive.read(sim::reg::Faults); }
    int position() const { return drive.read(sim::reg::PositionFeedback); }

    /// Runs until the status bit is as wanted; cycles that took, -1 when it never was.
    int cyclesUntil(std::int32_t statusBit, bool isSet, int limit = 10000)
    {
        for (int cycle = 0; cycle < limit; ++cycle) {
            if (has(statusBit) == isSet)
                return cycle;
            drive.advanceCycles(1);
        }
        return -1;
    }
};

#endif
