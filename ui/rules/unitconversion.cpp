#include "unitconversion.h"

#include <QCoreApplication>
#include <QLocale>
#include <iterator>

namespace {

constexpr double fullScaleSetpoint = 16384.0;
constexpr int suffixLength = 4;

struct AxisUnitRow
{
    const char *singular;
    const char *plural;
};
constexpr AxisUnitRow axisUnitTable[] = {
    {QT_TRANSLATE_NOOP("MW", "mm"), QT_TRANSLATE_NOOP("MW", "mm")},
    {QT_TRANSLATE_NOOP("MW", "µm"), QT_TRANSLATE_NOOP("MW", "µm")},
    {QT_TRANSLATE_NOOP("MW", "inch"), QT_TRANSLATE_NOOP("MW", "inches")},
    {QT_TRANSLATE_NOOP("MW", "revolution"), QT_TRANSLATE_NOOP("MW", "revolutions")},
    {QT_TRANSLATE_NOOP("MW", "degree"), QT_TRANSLATE_NOOP("MW", "degrees")},
};

// In the order in which they are tried. A label that ends in "hacc" is refreshed with the others and shows "ERROR": no
// conversion goes with it.
using Scale = UnitConversion::Scale;

struct SuffixRow
{
    const char *suffix;
    QString (*label)(const UnitConversion &, double);
};
const SuffixRow suffixTable[] = {
    {"rpos", [](const UnitConversion &u, double v) { return u.positionLabel(v); }},
    {"rvel", [](const UnitConversion &u, double v) { return u.velocityLabel(v); }},
    {"racc", [](const UnitConversion &u, double v) { return u.accelerationLabel(v); }},
    {"hpos", [](const UnitConversion &u, double v) { return u.positionLabel(v, Scale::Raw); }},
    {"hvel", [](const UnitConversion &u, double v) { return u.velocityLabel(v, Scale::Raw); }},
    {"hacc", [](const UnitConversion &, double) { return QStringLiteral("ERROR"); }},
};

QString translated(const char *text)
{
    return QCoreApplication::translate("MW", text);
}

QString label(double value, const QString &unit)
{
    return QStringLiteral("= ") + QString::number(value, 'g', 6) + QLatin1Char(' ') + unit;
}

} // namespace

AxisUnits axisUnits(int axisType)
{
    if (axisType < 0 || axisType >= int(std::size(axisUnitTable)))
        return {translated(QT_TRANSLATE_NOOP("MW", "error")), translated("error")};
    return {translated(axisUnitTable[axisType].singular), translated(axisUnitTable[axisType].plural)};
}

double UnitConversion::velocity(double hwunits, Scale scale) const
{
    const bool isRaw = scale == Scale::Raw || scale == Scale::RawSetpoint;
    const bool isSetpoint = scale == Scale::Setpoint || scale == Scale::RawSetpoint;
    const double d = isRaw ? 1.0 : div;
    const double f = isSetpoint ? mul / d : 1.0;
    return hwunits * pif / d / countsPerUnit() * f;
}

double UnitConversion::position(double hwunits, Scale scale) const
{
    const double k = scale == Scale::Raw ? 1.0 : mul / div;
    return k * hwunits / countsPerUnit();
}

double UnitConversion::acceleration(double hwunits) const
{
    return hwunits * pif * pif / div / countsPerUnit();
}

QString UnitConversion::velocityLabel(double hwunits, Scale scale) const
{
    return label(velocity(hwunits, scale), unit) + QStringLiteral("/s");
}

QString UnitConversion::positionLabel(double hwunits, Scale scale) const
{
    return label(position(hwunits, scale), unit);
}

QString UnitConversion::accelerationLabel(double hwunits) const
{
    return label(acceleration(hwunits), unit) + QStringLiteral("/s²");
}

QString UnitConversion::labelBySuffix(double hwunits, const QString &labelName) const
{
    for (const SuffixRow &row : suffixTable)
        if (labelName.endsWith(QLatin1String(row.suffix)))
            return row.label(*this, hwunits);
    return QStringLiteral("ERROR");
}

QString UnitConversion::setpointLabel(double ref, const ActiveScale &active) const
{
    switch (active.controlMode) {
    case 0:
        return positionLabel(ref);
    case 1:
        return velocityLabel(active.cvl * ref / fullScaleSetpoint, Scale::Setpoint);
    case 2:
        return label(active.mmc * ref / fullScaleSetpoint * mul / div, QStringLiteral("A"));
    default:
        return translated(QT_TRANSLATE_NOOP("MW", "no mode"));
    }
}

QString UnitConversion::scalingText() const
{
    return translated(QT_TRANSLATE_NOOP("MW", "Setpoint scaling factor:\n%1/%2=%3%"))
        .arg(mul)
        .arg(div)
        .arg(QString::number(mul * 100.0 / div, 'g', QLocale::FloatingPointShortest));
}

bool isUnitLabelName(const QString &labelName)
{
    for (const SuffixRow &row : suffixTable)
        if (labelName.endsWith(QLatin1String(row.suffix)))
            return true;
    return false;
}

QString controlOfUnitLabel(const QString &labelName)
{
    return labelName.left(labelName.size() - suffixLength);
}
