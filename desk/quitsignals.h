/// \file
/// SIGTERM, SIGINT, SIGHUP and SIGQUIT end the program as a closed window would: the drive is left properly, links are
/// removed.
#ifndef VELBRIN_DESK_QUITSIGNALS_H
#define VELBRIN_DESK_QUITSIGNALS_H

#include "signalpipe.h"

/// Turns the first signal into QCoreApplication::exit(0); the second ends the program at once. One at a time; the
/// application must exist. Handlers and no blocked signals (see Interruption): programs that the window starts, such as
/// the help's engine, would inherit the blocking.
class QuitSignals
{
public:
    QuitSignals();
    ~QuitSignals();
    QuitSignals(const QuitSignals &) = delete;
    QuitSignals &operator=(const QuitSignals &) = delete;

private:
    SignalPipe m_pipe;
};

#endif
