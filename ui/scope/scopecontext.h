/// \file
/// What the scripts around the charts are told: the members of the page's element "velbrin-scope", which
/// HelpView::showPlot and updateScope hand over.
#ifndef VELBRIN_UI_SCOPECONTEXT_H
#define VELBRIN_UI_SCOPECONTEXT_H

#include "capturehistory.h"

#include <QJsonArray>
#include <QJsonObject>

/// All of it, for the capture that is shown: its channels with scale and unit, the units that they can be shown in, the
/// captures of the session, what lies under it, figures and axis sheet when they are known, and the texts of bar and
/// tables. Empty when none is shown.
QJsonObject scopeContext(const CaptureHistory &history);

/// Only what was worked out: "figures", "axisSheet" and whether its feed-forward can be taken.
QJsonObject figuresContext(const KeptCapture &capture);

/// The units: revolutions a second and degrees of the motor where the feedback resolution is known, machine units where
/// they are a length, and what the recorder's channels have.
QJsonArray unitSystems(const CaptureRecord &capture);

/// "14:02:11", with the file's name when it was opened from one.
QString captureTitle(const KeptCapture &capture);

#endif
