/// \file
/// A figure that was worked out of a capture.
#ifndef VELBRIN_ANALYSIS_FIGURE_H
#define VELBRIN_ANALYSIS_FIGURE_H

#include <QString>

#include <optional>

/// A number, or why there is none.
struct Figure
{
    std::optional<double> value;
    QString reason; ///< one sentence to show; empty beside a number
};

#endif
