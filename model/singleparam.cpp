#include "singleparam.h"

#include <QLoggingCategory>

#include <cmath>
#include <limits>

// Off unless asked for (QT_LOGGING_RULES="velbrin.model.debug=true"): it is some hundred lines per read of a drive.
Q_LOGGING_CATEGORY(modelLog, "velbrin.model", QtInfoMsg)

int truncateToInt32(double value)
{
    if (std::isnan(value))
        return 0;
    if (value <= std::numeric_limits<int>::min())
        return std::numeric_limits<int>::min();
    if (value >= std::numeric_limits<int>::max())
        return std::numeric_limits<int>::max();
    return static_cast<int>(value);
}

double SingleParam::convertToGUIScale(double deviceValue) const
{
    return (deviceValue + offset) / scaling;
}

double SingleParam::convertToDeviceScale(double guiValue) const
{
    return std::round(guiValue * scaling - offset);
}

bool SingleParam::supportedInDevice(const QString &modelName) const
{
    // Neither trimmed nor skipped when empty: an empty piece is a prefix of every name.
    const auto pieces = devices.split(QLatin1Char(','), Qt::KeepEmptyParts);
    for (const QString &piece : pieces) {
        qCDebug(modelLog).noquote() << piece + QStringLiteral(" vs ") + modelName;
        if (modelName.toUpper().startsWith(piece.toUpper()))
            return true;
    }
    return false;
}
