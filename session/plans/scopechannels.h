/// \file
/// The drive's recorder: its channels, its rates, and how its words become samples. Pure functions, any thread.
#ifndef VELBRIN_SESSION_SCOPECHANNELS_H
#define VELBRIN_SESSION_SCOPECHANNELS_H

#include "capturedata.h"
#include "queueitem.h"

#include <array>

constexpr int scopeWordCount = 2000; ///< words in the recorder's memory, shared by the enabled channels
constexpr int scopeChunkWords = 40;  ///< words read in one exchange

/// First exchange of a download: 3-byte return values, each the word at the read address, which the values that follow
/// are written to. Whoever selects another register in between has to send these five again.
extern const std::array<QueueItem, 5> scopeDownloadSetUp;

/// The sixteen channels in the order of the selection lists, all disabled and empty.
QList<CaptureData> scopeChannels();

/// Enables channels by position; those beyond the end of `selected` keep their flag. Returns how many of `selected`
/// took effect as true (kept flags are not counted).
int selectScopeChannels(QList<CaptureData> &channels, const QList<bool> &selected);

/// Source mask of the enabled channels (register 5020).
quint32 scopeSourceMask(const QList<CaptureData> &channels);

/// Divider (register 5012) for a wanted sample rate, both rates in Hz: rounded, never below 0. A rate that is not above
/// 0 gives 0.
int scopeDivider(double baseRate, double sampleRate);

/// Time between two samples of a channel in s, which is seldom exactly what was asked for.
double scopeSamplePeriod(double baseRate, int divider);

/// Trigger code (register 5011) of a row in the trigger list.
constexpr int scopeTriggerCode(int triggerIndex)
{
    return triggerIndex + 1;
}

/// Appends word `index` of the recorder's memory to the channel it belongs to: the words of the enabled channels are
/// interleaved, lowest position first. Without an enabled channel nothing happens.
void storeCaptureSample(QList<CaptureData> &channels, int index, qint16 raw, double samplePeriod);

#endif
