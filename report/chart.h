/// \file
/// A capture as a picture that needs no script.
#ifndef VELBRIN_REPORT_CHART_H
#define VELBRIN_REPORT_CHART_H

#include "capture.h"

/// An SVG element: one chart for each group of the recorded channels (those that share an axis), below each other over
/// one time axis. What is thinner than the picture can show is drawn as its highest and lowest values. Empty when
/// nothing was recorded.
QString captureChart(const CaptureRecord &capture);

#endif
