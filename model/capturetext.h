/// \file
/// Captures as columns of text: the semicolon-separated file of the plotter, and one for spreadsheets.
#ifndef VELBRIN_MODEL_CAPTURETEXT_H
#define VELBRIN_MODEL_CAPTURETEXT_H

#include "capture.h"

#include <QByteArray>

/// Comma-separated (RFC 4180) in UTF-8: a line of names ("Time" first), a line of units ("s" first), then a line a
/// sample. Always a decimal point, never an exponent: time with nine decimals, values with six. The columns end with
/// the shortest one. Lines end with a line feed.
QByteArray captureToText(const QList<CaptureData> &channels);

/// Reads that text as well as the file of CapturePlotter::saveCaptureDataCSV, which has semicolons and no units.
/// `known` are the recorder's channels: a column is the channel that has its caption as name; a text with a column that
/// none has is refused. What a text does not hold (settings, drive, trigger) stays unknown. Returns an empty text, or
/// what is wrong, as one sentence; then `capture` is as it was.
QString captureFromText(const QByteArray &text, const QList<CaptureData> &known, CaptureRecord *capture);

#endif
