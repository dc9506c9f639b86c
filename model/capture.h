/// \file
/// A capture as one value: what was recorded, of which drive, with which settings, and when.
#ifndef VELBRIN_MODEL_CAPTURE_H
#define VELBRIN_MODEL_CAPTURE_H

#include "capturedata.h"
#include "parameters.h"

#include <QDateTime>
#include <QMetaType>

/// What the user let the setpoint do while the recorder ran.
struct CaptureMotion
{
    enum class Kind {
        None,       ///< nothing, or nothing that is known
        Step,       ///< one setpoint, `from` to `to`
        SquareWave, ///< `from` for `fromTime`, `to` for `toTime`, again and again
    };
    Kind kind = Kind::None;
    double from = 0.0;     ///< setpoint units
    double to = 0.0;       ///< setpoint units
    double fromTime = 0.0; ///< s
    double toTime = 0.0;   ///< s
};

/// Which drive it was, as far as it was read; an empty text or 0 is "not known".
struct DriveIdentity
{
    QString model; ///< as shown, e.g. "Tarnwell Devices Keta"
    int type = 0;  ///< register 6020
    int serial = 0;
    int address = 0;
    int firmware = 0;   ///< TarnwellCore version, e.g. 1078
    int ioFirmware = 0; ///< of the I/O side
    int buildRevision = 0;
};

/// What a file may say at most. A drive records words of 16 bits, 50 microseconds apart or more; beyond these limits
/// sums and squares would end in numbers that are none, and a figure's window would hold millions of samples.
constexpr double largestCaptureNumber = 1e15;  ///< of any number in a capture, either sign
constexpr double shortestSamplePeriod = 1e-6;  ///< s
constexpr double longestSamplePeriod = 3600.0; ///< s

/// A plain value, implicitly shared: copies are cheap and may travel between threads.
struct CaptureRecord
{
    /// Every channel of the recorder, or only the recorded ones; those that are not enabled do not count.
    QList<CaptureData> channels;
    double rate = 0.0;         ///< Hz, as asked for; 0 when not known
    double samplePeriod = 0.0; ///< s between two samples of a channel, as it really was
    int trigger = 0;           ///< trigger code of the recorder, 1 to 4; 0 when not known
    CaptureMotion motion;
    Parameters settings; ///< values and limits of the drive at that time; empty when not known
    DriveIdentity drive;
    QString program; ///< version of the program that made it
    QDateTime time;  ///< of the capture
    QString note;    ///< the user's own words: text, never markup

    /// The enabled channel with this key, or null.
    const CaptureData *channel(const QString &key) const;
    /// Display value of a setting, or `fallback` when it is not known.
    double setting(const QString &name, double fallback) const;
};

Q_DECLARE_METATYPE(CaptureRecord)

/// The channel's name in the language of the program. For people only: files are read back by `name`.
QString shownName(const CaptureData &channel);

#endif
