#include "chart.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <fstream>
#include <utility>

namespace {

// Pixels. The pane shrinks the picture a little, so the letters are larger than those of the page.
constexpr double Width = 340.0;
constexpr double Height = 230.0;
constexpr double Left = 52.0;
constexpr double Right = 322.0;
constexpr double Top = 42.0;
constexpr double Bottom = 192.0;
constexpr int LegendColumns = 2;
constexpr double LegendColumn = 165.0;
constexpr double LegendRow = 16.0;

template <typename... Values> std::string text(const char *format, Values... values)
{
    char buffer[512];
    std::snprintf(buffer, sizeof buffer, format, values...);
    return buffer;
}

/// 1, 2 or 5 times a power of ten, so that about four of them fit.
double niceTick(double span)
{
    const double rough = span / 4.0;
    const double power = std::pow(10.0, std::floor(std::log10(rough)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (factor * power >= rough * 0.999)
            return factor * power;
    }
    return 10.0 * power;
}

double down(double place)
{
    return Bottom - place * (Bottom - Top);
}

double across(double place)
{
    return Left + place * (Right - Left);
}

} // namespace

Chart::Chart(std::string horizontal, std::string vertical, double step)
    : m_horizontal(std::move(horizontal)), m_vertical(std::move(vertical)), m_step(step)
{
}

void Chart::add(Curve curve)
{
    m_curves.push_back(std::move(curve));
}

void Chart::setRange(double low, double high)
{
    m_low = low;
    m_high = high;
}

Chart::Axis Chart::horizontalAxis() const
{
    std::size_t count = 0;
    for (const Curve &curve : m_curves)
        count = std::max(count, curve.values.size());
    const double end = std::max(1.0, count - 1.0) * m_step;
    return {0.0, end, niceTick(end)};
}

Chart::Axis Chart::verticalAxis() const
{
    double low = m_low, high = m_high;
    if (low == high) {
        for (const Curve &curve : m_curves) {
            for (const double value : curve.values) {
                low = std::min(low, value);
                high = std::max(high, value);
            }
        }
    }
    const double tick = niceTick(std::max(high - low, 1e-9));
    return {std::floor(low / tick) * tick, std::ceil(high / tick - 1e-9) * tick, tick};
}

std::string Chart::legend() const
{
    std::string svg;
    for (std::size_t i = 0; i < m_curves.size(); ++i) {
        const double x = 8.0 + (i % LegendColumns) * LegendColumn;
        const double y = 12.0 + (i / LegendColumns) * LegendRow;
        svg += text("<path d=\"M%.0f %.0fh20\" stroke=\"%s\" stroke-width=\"2.5\"%s/>\n", x, y,
                    m_curves[i].colour.c_str(), m_curves[i].dashed ? " stroke-dasharray=\"5 3\"" : "");
        svg += text("<text x=\"%.0f\" y=\"%.0f\">%s</text>\n", x + 25.0, y + 4.0, m_curves[i].name.c_str());
    }
    return svg;
}

std::string Chart::grid(const Axis &x, const Axis &y) const
{
    std::string svg;
    for (double v = y.low; v <= y.high + y.tick / 2; v += y.tick) {
        const double at = down(y.place(v));
        svg += text("<path d=\"M%.0f %.1fH%.0f\" stroke=\"%s\"/>\n", Left, at, Right,
                    std::abs(v) < y.tick / 2 ? "#888" : "#ddd");
        svg += text("<text x=\"%.0f\" y=\"%.1f\" text-anchor=\"end\">%g</text>\n", Left - 4.0, at + 4.0,
                    std::abs(v) < y.tick / 2 ? 0.0 : v);
    }
    for (double v = x.low; v <= x.high + x.tick / 1000; v += x.tick) {
        const double at = across(x.place(v));
        svg += text("<path d=\"M%.1f %.0fV%.0f\" stroke=\"#ddd\"/>\n", at, Top, Bottom);
        svg += text("<text x=\"%.1f\" y=\"%.0f\" text-anchor=\"middle\">%g</text>\n", at, Bottom + 15.0, v);
    }
    svg += text("<text x=\"%.0f\" y=\"%.0f\" text-anchor=\"middle\">%s</text>\n", (Left + Right) / 2, Height - 8.0,
                m_horizontal.c_str());
    svg += text("<text transform=\"translate(12 %.0f) rotate(-90)\" text-anchor=\"middle\">%s</text>\n",
                (Top + Bottom) / 2, m_vertical.c_str());
    return svg;
}

std::string Chart::line(const Curve &curve, const Axis &x, const Axis &y) const
{
    std::string points;
    for (std::size_t i = 0; i < curve.values.size(); ++i) {
        const double place = std::clamp(y.place(curve.values[i]), 0.0, 1.0);
        points += text("%s%.1f %.1f", i == 0 ? "M" : "L", across(x.place(i * m_step)), down(place));
    }
    return text("<path fill=\"none\" stroke=\"%s\" stroke-width=\"1.8\" stroke-linejoin=\"round\"%s d=\"",
                curve.colour.c_str(), curve.dashed ? " stroke-dasharray=\"5 3\"" : "") +
           points + "\"/>\n";
}

bool Chart::save(const std::string &fileName) const
{
    const Axis x = horizontalAxis();
    const Axis y = verticalAxis();
    std::ofstream file(fileName);
    file << text("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"%.0f\" height=\"%.0f\" viewBox=\"0 0 %.0f %.0f\" "
                 "font-family=\"DejaVu Sans, sans-serif\" font-size=\"12\" fill=\"#222\">\n",
                 Width, Height, Width, Height)
         << grid(x, y);
    for (const Curve &curve : m_curves)
        file << line(curve, x, y);
    file << legend() << "</svg>\n";
    file.close();
    return !file.fail();
}
