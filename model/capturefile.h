/// \file
/// Opening a saved capture, whatever kind of file it is in.
#ifndef VELBRIN_MODEL_CAPTUREFILE_H
#define VELBRIN_MODEL_CAPTUREFILE_H

#include "capture.h"

#include <QJsonObject>

/// Reads a saved plot page, a block of JSON, or either text format; which of them it is shows in what the file holds,
/// not in its name. `known` are the recorder's channels, for the captions of text files. Returns an empty text, or what
/// is wrong, as one sentence without markup; then `capture` is as it was. Only plain files of up to 8 MB are read.
QString readCaptureFile(const QString &fileName, const QList<CaptureData> &known, CaptureRecord *capture);

/// The page of CapturePlotter, with every text of the capture made harmless and its settings below the charts; between
/// the two stands `belowCharts`, which is HTML.
QString plotPageOf(const CaptureRecord &capture, const QString &belowCharts = {});

/// The same with the capture in it: the block stands before its end (see captureToJson for `extra`).
QString capturePage(const CaptureRecord &capture, const QJsonObject &extra = {}, const QString &belowCharts = {});

#endif
