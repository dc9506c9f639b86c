/// \file
/// A capture as a page to keep: the charts, what a reader wants to know of them in words, and the capture itself.
#ifndef VELBRIN_REPORT_SAVEDPAGE_H
#define VELBRIN_REPORT_SAVEDPAGE_H

#include "capturefigures.h"

/// The plot page with its capture (see capturePage), which Velbrin opens again. Below the charts stand drive, time,
/// note, what was recorded, the figures, and the settings that a new drive does not have, all of it without scripts;
/// where there are none, a still picture takes the charts' place. It refers to the scripts; see standalonePage.
QString savedCapturePage(const CaptureRecord &capture, const CaptureFigures &figures);

#endif
