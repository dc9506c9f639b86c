/// \file
/// Where a capture stands.
#ifndef VELBRIN_SESSION_CAPTURESTATE_H
#define VELBRIN_SESSION_CAPTURESTATE_H

#include <QMetaType>

enum class CaptureState {
    Idle,        ///< nothing is armed. After Downloading the capture is over: without a plotReady before it, it failed
    Waiting,     ///< armed: the recorder waits for its trigger, or fills
    Downloading, ///< the recorder is full and is being read
};
Q_DECLARE_METATYPE(CaptureState)

#endif
