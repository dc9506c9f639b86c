/// \file
/// A capture as one block of JSON. The members are described in docs/capture-format.md.
#ifndef VELBRIN_MODEL_CAPTUREJSON_H
#define VELBRIN_MODEL_CAPTUREJSON_H

#include "capture.h"

#include <QByteArray>
#include <QJsonObject>

/// Version of the block that is written. Blocks of this version and older ones are read, newer ones are refused.
constexpr int captureFormatVersion = 1;

constexpr qsizetype longestNote = 20000; ///< characters of a capture's note; a longer one is refused

/// The capture as members of one object; only enabled channels are kept. `extra` (figures, an axis sheet) is added at
/// the top level and must not use the names of the format; reading ignores it.
QJsonObject captureToJson(const CaptureRecord &capture, const QJsonObject &extra = {});

/// Fills `capture`. Returns an empty text, or what is wrong with the block, as one sentence; then `capture` is as it
/// was. The block may come from anywhere: names that could act as markup or script in the plot page, numbers that are
/// none, and sizes that no drive records are refused.
QString captureFromJson(const QByteArray &json, CaptureRecord *capture);

#endif
