/// \file
/// What a command came to.
#ifndef VELBRIN_CLI_OUTCOME_H
#define VELBRIN_CLI_OUTCOME_H

#include "results.h"

/// Exit statuses of the program.
enum ExitStatus {
    ExitDone = 0,
    ExitFailed = 1,    ///< refused or failed; the reason is on standard error
    ExitUsage = 2,     ///< the command line makes no sense
    ExitDifferent = 3, ///< "compare" found a difference
};

struct Outcome
{
    ExitStatus status = ExitDone;
    Results results;      ///< for standard output
    QStringList messages; ///< for standard error, whole sentences
};

inline Outcome failed(const QStringList &messages = {})
{
    return {ExitFailed, {}, messages};
}

#endif
