#include "sanitychecks.h"

#include <QCoreApplication>

namespace {

// Over speed may come within a tenth of the commanded limit before it trips in normal use.
constexpr double speedReserve = 0.9;

struct SupplyLimit
{
    const char *family; ///< looked for in the model's name
    double volts;       ///< below this the short circuit protection is less sensitive
    const char *text;
};
// The texts are whole: a translator sees each as a sentence.
constexpr SupplyLimit supplyLimits[] = {
    {"TORVA", 70.0,
     QT_TRANSLATE_NOOP("MW", "<html><head/><body><p><b>Warning:</b> operating Torva under 70 VDC may reduce it's short "
                             "circuit protection sensitivity making it vulnerable to permanent hardware damage in the "
                             "case of short circuit.</p></body></html>")},
    {"KETA", 20.0,
     QT_TRANSLATE_NOOP("MW", "<html><head/><body><p><b>Warning:</b> operating Keta under 20 VDC may reduce it's short "
                             "circuit protection sensitivity making it vulnerable to permanent hardware damage in the "
                             "case of short circuit.</p></body></html>")},
};

QString translated(const char *text)
{
    return QCoreApplication::translate("MW", text);
}

QString listItem(const QString &text)
{
    return QStringLiteral("<li>") + text + QStringLiteral("</li>");
}

} // namespace

QString sanityWarnings(const SanityInputs &in)
{
    QString items;
    // 64 bits: four times a large threshold does not fit into 32.
    if (in.homing != 0 && qint64(in.homingThreshold) * 4 / 3 > in.trackingThreshold)
        items += listItem(translated(QT_TRANSLATE_NOOP(
            "MW", "Homing hard stop threshold [HMH] is near or above position tracking error threshold [FPT]. This "
                  "means that tracking error fault might occur before hard stop detection. Recommendation: reduce HMH "
                  "or increase FPT.")));
    if (in.controlMode != 2 && in.limitVelocity > speedReserve * in.faultVelocity)
        items += listItem(translated(QT_TRANSLATE_NOOP(
            "MW", "Over speed fault threshold [FEV] is near or less than Velocity limit [CVL]. This means that over "
                  "speed fault might occur during normal operation. Recommendation: reduce CVL or increase FEV.")));
    if (items.isEmpty())
        return items;
    return translated(QT_TRANSLATE_NOOP("MW", "Parameter sanity check warnings:<ul>%1</ul>")).arg(items);
}

SupplyWarning underVoltageWarning(const QString &modelText, double volts)
{
    SupplyWarning warning;
    for (const SupplyLimit &limit : supplyLimits)
        if (modelText.contains(QLatin1String(limit.family), Qt::CaseInsensitive))
            warning = {translated(limit.text), volts < limit.volts};
    return warning;
}
