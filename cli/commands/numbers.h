/// \file
/// Numbers on the command line: decimal, with a point whatever the locale.
#ifndef VELBRIN_CLI_NUMBERS_H
#define VELBRIN_CLI_NUMBERS_H

#include <QString>

#include <optional>

// What a write of 30 bits carries.
constexpr int lowestSetpoint = -536870912;
constexpr int highestSetpoint = 536870911;

/// Empty for what is no number or lies outside the limits.
inline std::optional<int> wholeNumber(const QString &text, int minimum, int maximum)
{
    bool isNumber = false;
    const int value = text.toInt(&isNumber);
    return isNumber && value >= minimum && value <= maximum ? std::optional<int>(value) : std::nullopt;
}

inline std::optional<double> number(const QString &text, double minimum, double maximum)
{
    bool isNumber = false;
    const double value = text.toDouble(&isNumber);
    return isNumber && value >= minimum && value <= maximum ? std::optional<double>(value) : std::nullopt;
}

#endif
