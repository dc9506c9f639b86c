/// \file
/// A small line chart as SVG, legible in a pane 300 pixels wide.
#ifndef VELBRIN_DOCS_CHART_H
#define VELBRIN_DOCS_CHART_H

#include <string>
#include <vector>

struct Curve
{
    std::string name; ///< for the legend
    std::string colour;
    std::vector<double> values; ///< one every `step` along the horizontal axis
    bool dashed = false;        ///< what was wanted, as against what came of it
};

class Chart
{
public:
    /// Captions with their units, such as "time, ms"; `step` is the distance of two values in the unit of the
    /// horizontal axis.
    Chart(std::string horizontal, std::string vertical, double step);

    void add(Curve curve);
    /// The vertical axis, otherwise taken from the values.
    void setRange(double low, double high);
    /// False when the file cannot be written.
    bool save(const std::string &fileName) const;

private:
    struct Axis
    {
        double low, high, tick;
        double place(double value) const { return (value - low) / (high - low); }
    };
    Axis horizontalAxis() const;
    Axis verticalAxis() const;
    std::string legend() const;
    std::string grid(const Axis &x, const Axis &y) const;
    std::string line(const Curve &curve, const Axis &x, const Axis &y) const;

    std::string m_horizontal, m_vertical;
    double m_step;
    double m_low = 0.0, m_high = 0.0;
    std::vector<Curve> m_curves;
};

#endif
