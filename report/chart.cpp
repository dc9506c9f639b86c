#include "chart.h"

#include <QMap>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace {

constexpr double width = 720.0;
constexpr double left = 70.0; // room for the numbers of the axis
constexpr double chartHeight = 120.0;
constexpr double chartTop = 20.0; // room for the legend
constexpr double chartStep = chartHeight + chartTop + 10.0;
constexpr double footer = 20.0;
constexpr int columns = 600; // of the picture; more samples than two a column are drawn as highest and lowest

const char *const colours[] = {"#1f5fae", "#c8440c", "#2f8f2f", "#8a3fa0", "#7a6a00", "#00857f", "#b0245f", "#555555"};

using Samples = QList<QPair<double, double>>;

struct Range
{
    double low = 0.0;
    double high = 1.0;

    double at(double value) const { return (value - low) / (high - low); }
};

Range rangeOf(const QList<double> &values)
{
    const auto ends = std::minmax_element(values.cbegin(), values.cend());
    Range range{*ends.first, *ends.second};
    if (!(range.high - range.low > 1e-12 * std::max(std::abs(range.low), std::abs(range.high))))
        range = {range.low - 1.0, range.high + 1.0};
    return range;
}

QString number(double value)
{
    return QString::number(value, 'f', 1);
}

/// Highest and lowest value of each column of the picture, in the order in which they come.
Samples thinned(const Samples &samples)
{
    if (samples.size() <= 2 * columns)
        return samples;
    Samples result;
    for (int column = 0; column < columns; ++column) {
        const auto begin = samples.cbegin() + samples.size() * column / columns;
        const auto end = samples.cbegin() + samples.size() * (column + 1) / columns;
        const auto isLess = [](const auto &a, const auto &b) { return a.second < b.second; };
        const auto ends = std::minmax_element(begin, end, isLess);
        result.append(*std::min(ends.first, ends.second));
        result.append(*std::max(ends.first, ends.second));
    }
    return result;
}

QString line(const Samples &samples, const Range &time, const Range &values, double top, const char *colour)
{
    QString points;
    for (const auto &[at, value] : thinned(samples))
        points += number(left + time.at(at) * (width - left)) + QLatin1Char(',') +
                  number(top + (1.0 - values.at(value)) * chartHeight) + QLatin1Char(' ');
    return QStringLiteral("<polyline fill=\"none\" stroke=\"%1\" points=\"%2\"/>\n")
        .arg(QLatin1String(colour), points.trimmed());
}

QString label(double x, double y, const char *anchor, const QString &text, const char *colour = "#000")
{
    return QStringLiteral("<text x=\"%1\" y=\"%2\" text-anchor=\"%3\" fill=\"%4\">%5</text>\n")
        .arg(number(x), number(y), QLatin1String(anchor), QLatin1String(colour), text.toHtmlEscaped());
}

/// Counts run into millions: whole ones instead of powers of ten.
QString scaleText(double value)
{
    return std::abs(value) >= 1000.0 && std::abs(value) < 1e10 ? QString::number(value, 'f', 0)
                                                               : QString::number(value, 'g', 4);
}

/// One group of channels, its upper edge at `top`.
QString chart(const QList<CaptureData> &channels, const Range &time, double top)
{
    QList<double> all;
    for (const CaptureData &channel : channels) {
        for (const auto &sample : channel.samples)
            all.append(sample.second);
    }
    const Range values = rangeOf(all);
    QString svg = QStringLiteral("<rect x=\"%1\" y=\"%2\" width=\"%3\" height=\"%4\" fill=\"none\" stroke=\"#999\"/>\n")
                      .arg(number(left), number(top), number(width - left), number(chartHeight));
    for (const double share : {0.0, 0.5, 1.0}) {
        const double y = top + (1.0 - share) * chartHeight;
        svg += label(left - 5.0, y + 4.0, "end", scaleText(values.low + share * (values.high - values.low)));
    }
    if (values.low < 0.0 && values.high > 0.0) {
        const QString zero = number(top + (1.0 - values.at(0.0)) * chartHeight);
        svg += QStringLiteral("<line x1=\"%1\" y1=\"%2\" x2=\"%3\" y2=\"%2\" stroke=\"#ccc\"/>\n")
                   .arg(number(left), zero, number(width));
    }
    double legend = left;
    for (int i = 0; i < channels.size(); ++i) {
        const char *colour = colours[i % std::size(colours)];
        const QString name = shownName(channels.at(i));
        svg +=
            label(legend, top - 5.0, "start", name, colour) + line(channels.at(i).samples, time, values, top, colour);
        legend += 7.0 * name.size() + 20.0;
    }
    return svg;
}

} // namespace

QString captureChart(const CaptureRecord &capture)
{
    QStringList order;
    QMap<QString, QList<CaptureData>> groups;
    QList<double> times;
    for (const CaptureData &channel : capture.channels) {
        if (!channel.enabled || channel.samples.isEmpty())
            continue;
        if (!order.contains(channel.group))
            order.append(channel.group);
        groups[channel.group].append(channel);
        times += {channel.samples.first().first, channel.samples.last().first};
    }
    if (order.isEmpty())
        return QString();
    const Range time = rangeOf(times);
    const double height = chartStep * order.size() + footer;
    QString svg = QStringLiteral("<svg viewBox=\"0 0 %1 %2\" width=\"%1\" height=\"%2\" role=\"img\" font-size=\"11\" "
                                 "font-family=\"sans-serif\" xmlns=\"http://www.w3.org/2000/svg\">\n")
                      .arg(number(width), number(height));
    for (int i = 0; i < order.size(); ++i)
        svg += chart(groups.value(order.at(i)), time, chartTop + i * chartStep);
    for (const double share : {0.0, 0.25, 0.5, 0.75, 1.0}) {
        const char *anchor = share == 0.0 ? "start" : share == 1.0 ? "end" : "middle";
        const double at = time.low + share * (time.high - time.low);
        svg += label(left + share * (width - left), height - footer + 5.0, anchor,
                     QStringLiteral("%1 s").arg(QString::number(at, 'g', 4)));
    }
    return svg + QLatin1String("</svg>\n");
}
