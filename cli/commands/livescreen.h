/// \file
/// A terminal that shows a report which is redrawn in place.
#ifndef VELBRIN_CLI_LIVESCREEN_H
#define VELBRIN_CLI_LIVESCREEN_H

#include "statusreport.h"

/// Lines of one screen: the identity on top, below it the panels side by side where they fit beside each other. Cut to
/// `width` and `height`; where lines are left out the last one says so.
QStringList screenLines(const StatusReport &report, int width, int height);

/// Standard output, if that is a terminal. Draws on its second screen, so that what was there before comes back; the
/// last report then stays below it.
class LiveScreen
{
public:
    LiveScreen();
    ~LiveScreen();
    LiveScreen(const LiveScreen &) = delete;
    LiveScreen &operator=(const LiveScreen &) = delete;

    bool isTerminal() const { return m_isTerminal; }
    /// False when the terminal has gone.
    bool draw(const StatusReport &report);

private:
    bool m_isTerminal;
    bool m_isShown = false;
    QByteArray m_last; ///< as it is left behind
};

#endif
