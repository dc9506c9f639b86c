#include "scopetexts.h"

namespace {

constexpr const char *texts[] = {
    QT_TRANSLATE_NOOP("Scope", "raw"),
    QT_TRANSLATE_NOOP("Scope", "Show or hide this channel"),
    QT_TRANSLATE_NOOP("Scope", "Click into a chart for the first cursor, Shift and click for the second."),
    QT_TRANSLATE_NOOP("Scope", "Time"),
    QT_TRANSLATE_NOOP("Scope", "in grey"),
    QT_TRANSLATE_NOOP("Scope", "shown"),
    QT_TRANSLATE_NOOP("Scope", "No setting differs."),
    QT_TRANSLATE_NOOP("Scope", "Cursors"),
    QT_TRANSLATE_NOOP("Scope", "Step figures"),
    QT_TRANSLATE_NOOP("Scope", "Axis sheet"),
    QT_TRANSLATE_NOOP("Scope", "Captures of this session"),
    QT_TRANSLATE_NOOP("Scope", "Settings that differ"),
    QT_TRANSLATE_NOOP("Scope", "Note"),
    QT_TRANSLATE_NOOP("Scope", "Whole record"),
    QT_TRANSLATE_NOOP("Scope", "All of the record in all charts (0)"),
    QT_TRANSLATE_NOOP("Scope", "Less of the record, larger (+, wheel)"),
    QT_TRANSLATE_NOOP("Scope", "More of the record (-, wheel)"),
    QT_TRANSLATE_NOOP("Scope", "No cursors"),
    QT_TRANSLATE_NOOP("Scope", "Takes both cursors away (C)"),
    QT_TRANSLATE_NOOP("Scope", "Put AFF and VFF into the pages"),
    QT_TRANSLATE_NOOP("Scope", "As a change that is not applied yet: the drive gets it with Apply"),
    QT_TRANSLATE_NOOP("Scope", "take away"),
    QT_TRANSLATE_NOOP("Scope", "No longer under the present capture"),
    QT_TRANSLATE_NOOP("Scope", "Open capture..."),
    QT_TRANSLATE_NOOP("Scope", "A capture that was saved as a page or as columns"),
    QT_TRANSLATE_NOOP("Scope", "Back to the pages (F11)"),
    QT_TRANSLATE_NOOP("Scope", "Open out (F11)"),
    QT_TRANSLATE_NOOP("Scope", "The charts over the whole window, and back"),
    QT_TRANSLATE_NOOP("Scope", "Units of all charts and values (U)"),
    QT_TRANSLATE_NOOP("Scope", "Raw words"),
    QT_TRANSLATE_NOOP("Scope", "As recorded"),
    QT_TRANSLATE_NOOP("Scope", "lay under"),
    QT_TRANSLATE_NOOP("Scope", "In grey under the present capture"),
    QT_TRANSLATE_NOOP("Scope", "Show this capture"),
    // The plot page's own.
    QT_TRANSLATE_NOOP("Scope", "Save as file"),
    QT_TRANSLATE_NOOP("Scope", "Restore zoom"),
    QT_TRANSLATE_NOOP("Scope", "Switch to help browser"),
    QT_TRANSLATE_NOOP("Scope", "Click and drag on graph to zoom"),
    QT_TRANSLATE_NOOP("Scope", "vel = counts per control cycle of 0.4 ms. Revolutions per second = vel × 2500 / (4 × "
                               "FBR)."),
};

struct Brief
{
    const char *figure;
    const char *caption;
};
constexpr Brief briefs[] = {
    {"riseTime", QT_TRANSLATE_NOOP("Scope", "Rise")},
    {"overshoot", QT_TRANSLATE_NOOP("Scope", "Overshoot")},
    {"settlingTime", QT_TRANSLATE_NOOP("Scope", "Settling")},
    {"rmsError", QT_TRANSLATE_NOOP("Scope", "RMS error")},
};

} // namespace

QJsonObject scopeTexts()
{
    QJsonObject all;
    for (const char *text : texts)
        all.insert(QString::fromUtf8(text), ScopeText::tr(text));
    return all;
}

QString briefCaption(const QString &figure)
{
    for (const Brief &brief : briefs) {
        if (figure == QLatin1String(brief.figure))
            return ScopeText::tr(brief.caption);
    }
    return QString();
}
