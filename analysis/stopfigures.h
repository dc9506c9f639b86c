/// \file
/// How an axis came to a standstill after somebody pressed its stop.
///
/// The recorder starts with the fault that the stop raises, so the record begins there. With p(k) the position of
/// sample k, every `period` seconds, and p(end) the last one, the axis stands from the first sample from which on |p(k)
/// - p(end)| <= 2 counts holds to the end.
///   time      of that sample, s
///   distance  |p - p(0)| there, counts; the farthest point, should it have been farther, is `farthest`
/// There is no number when it does not stand for the last tenth of the record (it may still be moving), nor when it did
/// not move at all.
#ifndef VELBRIN_ANALYSIS_STOPFIGURES_H
#define VELBRIN_ANALYSIS_STOPFIGURES_H

#include "stepfigures.h"

struct StopFigures
{
    Figure time;     ///< s
    Figure distance; ///< counts
    Figure farthest; ///< counts, largest distance from where the stop was pressed
};

/// Needs the channel "Position achieved". Any record, also an empty one.
StopFigures stopFigures(const CaptureRecord &capture);

/// "time", "distance", "farthest" (null where not defined), and the reasons by the same names under "reason".
QJsonObject toJson(const StopFigures &figures);

#endif
