#include "capturetext.h"

#include <QCoreApplication>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

constexpr qsizetype mostColumns = 65;
constexpr qsizetype mostRows = 100000;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CaptureRecord)
};

QString quoted(const QString &field)
{
    if (!field.contains(QLatin1Char(',')) && !field.contains(QLatin1Char('"')) && !field.contains(QLatin1Char('\n')))
        return field;
    QString doubled = field;
    doubled.replace(QLatin1Char('"'), QLatin1String("\"\""));
    return QLatin1Char('"') + doubled + QLatin1Char('"');
}

/// Fields of one line; a quoted field may hold the separator.
QStringList fieldsOf(const QString &line, QChar separator)
{
    QStringList fields;
    QString field;
    bool isQuoted = false;
    for (qsizetype i = 0; i < line.size(); ++i) {
        const QChar c = line.at(i);
        const bool isDoubled = isQuoted && c == QLatin1Char('"') && line.mid(i + 1, 1) == QLatin1String("\"");
        if (isDoubled) {
            field += c;
            ++i;
        } else if (c == QLatin1Char('"')) {
            isQuoted = !isQuoted;
        } else if (c == separator && !isQuoted) {
            fields.append(field);
            field.clear();
        } else {
            field += c;
        }
    }
    return fields << field;
}

/// False when a field is no number, or one that no drive records.
bool numbersOf(const QStringList &fields, QList<double> &numbers)
{
    numbers.clear();
    for (const QString &field : fields) {
        bool isNumber = false;
        const double number = field.toDouble(&isNumber); // always with a decimal point
        if (!isNumber || !(std::abs(number) <= largestCaptureNumber))
            return false;
        numbers.append(number);
    }
    return true;
}

QString channelsOf(const QStringList &captions, const QList<CaptureData> &known, QList<CaptureData> &channels)
{
    if (captions.size() < 2 || captions.size() > mostColumns || captions.first() != QLatin1String("Time"))
        return Text::tr("This is not a capture of Velbrin: its first line does not name the columns.");
    for (qsizetype column = 1; column < captions.size(); ++column) {
        const auto found = std::find_if(known.cbegin(), known.cend(), [&](const CaptureData &channel) {
            return channel.name == captions.at(column);
        });
        if (found == known.cend())
            return Text::tr("This is not a capture of Velbrin: the caption of column %1 is no channel of the recorder.")
                .arg(column + 1);
        CaptureData channel = *found;
        channel.samples.clear();
        channel.enabled = true;
        for (const CaptureData &earlier : channels) {
            if (earlier.key == channel.key)
                return Text::tr("The capture is damaged: column %1 repeats an earlier one.").arg(column + 1);
        }
        channels.append(channel);
    }
    return QString();
}

/// Time between rows, or 0 when they are not evenly spaced or no drive records so. The file's times are rounded to six
/// digits.
double periodOf(const QList<double> &times)
{
    const double span = times.last() - times.first();
    const double period = span / (times.size() - 1);
    if (!(period >= shortestSamplePeriod && period <= longestSamplePeriod))
        return 0.0;
    for (qsizetype row = 0; row < times.size(); ++row) {
        if (std::abs(times.at(row) - times.first() - row * period) > 0.1 * period + 1e-5 * times.last())
            return 0.0;
    }
    return period;
}

} // namespace

QByteArray captureToText(const QList<CaptureData> &channels)
{
    QList<CaptureData> enabled;
    std::copy_if(channels.cbegin(), channels.cend(), std::back_inserter(enabled),
                 [](const CaptureData &channel) { return channel.enabled; });
    QString names = QStringLiteral("Time"), units = QStringLiteral("s"), text;
    qsizetype rows = enabled.isEmpty() ? 0 : enabled.first().samples.size();
    for (const CaptureData &channel : enabled) {
        names += QLatin1Char(',') + quoted(channel.name);
        units += QLatin1Char(',') + quoted(channel.unit);
        rows = std::min(rows, channel.samples.size());
    }
    for (qsizetype row = 0; row < rows; ++row) {
        text += QString::number(enabled.first().samples.at(row).first, 'f', 9);
        for (const CaptureData &channel : enabled)
            text += QLatin1Char(',') + QString::number(channel.samples.at(row).second, 'f', 6);
        text += QLatin1Char('\n');
    }
    return (names + QLatin1Char('\n') + units + QLatin1Char('\n') + text).toUtf8();
}

QString captureFromText(const QByteArray &text, const QList<CaptureData> &known, CaptureRecord *capture)
{
    if (text.count('\n') > mostRows) // before each of them becomes a text of its own
        return Text::tr("The file is far too large to be a capture.");
    QStringList lines = QString::fromUtf8(text).split(QLatin1Char('\n'));
    for (QString &line : lines)
        line.remove(QLatin1Char('\r'));
    while (!lines.isEmpty() && lines.last().isEmpty())
        lines.removeLast();
    if (lines.isEmpty())
        return Text::tr("The file is empty.");
    const QChar separator = lines.first().contains(QLatin1Char(';')) ? QLatin1Char(';') : QLatin1Char(',');

    CaptureRecord taken;
    const QString problem = channelsOf(fieldsOf(lines.first(), separator), known, taken.channels);
    if (!problem.isEmpty())
        return problem;
    const bool hasUnits = lines.size() > 1 && fieldsOf(lines.at(1), separator).first() == QLatin1String("s");
    QList<double> times, row;
    for (qsizetype i = hasUnits ? 2 : 1; i < lines.size(); ++i) {
        if (!numbersOf(fieldsOf(lines.at(i), separator), row) || row.size() != taken.channels.size() + 1)
            return Text::tr("The capture is damaged: line %1 does not hold one number a column.").arg(i + 1);
        times.append(row.first());
        for (qsizetype column = 1; column < row.size(); ++column)
            taken.channels[column - 1].samples.append({row.first(), row.at(column)});
    }
    if (times.size() < 2)
        return Text::tr("The capture has fewer than two samples.");
    taken.samplePeriod = periodOf(times);
    if (taken.samplePeriod == 0.0)
        return Text::tr("The capture is damaged: its samples are not evenly spaced in time.");
    *capture = taken;
    return QString();
}
