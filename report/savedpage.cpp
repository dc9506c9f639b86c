#include "savedpage.h"

#include "capturefile.h"
#include "chart.h"
#include "html.h"
#include "settingfacts.h"

#include <QCoreApplication>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(SavedPage)
};

// The charts' places are empty where no script draws them.
const char *const withoutScripts = "<noscript>\n<style>body > div { display: none; }</style>\n%1</noscript>\n";

const char *const style = R"(<style>
.about table { border-collapse: collapse; font-size: 12px; line-height: 16px; }
.about th, .about td { padding: 2px 12px 2px 0; border-bottom: 1px solid var(--line, #ccc); text-align: left;
  vertical-align: top; font-weight: normal; }
.about tr > :first-child { color: var(--soft, #555); white-space: nowrap; }
.about .note { white-space: pre-wrap; font-size: 13px; color: inherit; }
noscript svg { background: #fff; max-width: 100%; height: auto; }
@media print { .about tr { break-inside: avoid; } }
</style>
)";

const char *const triggers[] = {
    QT_TRANSLATE_NOOP("SavedPage", "not known"),
    QT_TRANSLATE_NOOP("SavedPage", "setpoint change in positive direction"),
    QT_TRANSLATE_NOOP("SavedPage", "setpoint change"),
    QT_TRANSLATE_NOOP("SavedPage", "fault"),
    QT_TRANSLATE_NOOP("SavedPage", "none, at once"),
};

QString motionText(const CaptureMotion &motion)
{
    const QString from = html::number(motion.from), to = html::number(motion.to);
    if (motion.kind == CaptureMotion::Kind::Step)
        return Text::tr("setpoint from %1 to %2").arg(from, to);
    if (motion.kind == CaptureMotion::Kind::SquareWave)
        return Text::tr("to and fro: setpoint %1 for %2 s, %3 for %4 s")
            .arg(from, html::number(motion.fromTime), to, html::number(motion.toTime));
    return Text::tr("none that is known");
}

QString captureSection(const CaptureRecord &capture)
{
    QStringList signalNames;
    for (const CaptureData &channel : capture.channels) {
        if (channel.enabled)
            signalNames.append(shownName(channel));
    }
    const bool isKnown = capture.trigger > 0 && capture.trigger < int(std::size(triggers));
    html::Facts rows = {{Text::tr("Recorded"), html::when(capture.time)}};
    rows += html::identity(capture.drive);
    rows += {{Text::tr("Trigger"), Text::tr(triggers[isKnown ? capture.trigger : 0])},
             {Text::tr("Motion"), motionText(capture.motion)},
             {Text::tr("Signals"), signalNames.join(QLatin1String(", "))},
             {Text::tr("Sample rate"), capture.samplePeriod > 0.0
                                           ? Text::tr("%1 Hz").arg(QString::number(1.0 / capture.samplePeriod, 'g', 6))
                                           : Text::tr("not known")},
             {Text::tr("Velbrin version"), capture.program}};
    QString note;
    if (!capture.note.isEmpty())
        note = QLatin1String("<p class=\"note\">") + capture.note.toHtmlEscaped() + QLatin1String("</p>\n");
    return html::section(Text::tr("Capture"), note + html::table(rows));
}

QString figuresSection(const CaptureFigures &figures)
{
    html::Facts rows;
    for (const FigureLine &line : figureLines(figures, Reasons::Once))
        rows.append({line.caption, line.value});
    return html::section(Text::tr("Figures"), html::table(rows));
}

QString settingsSection(const CaptureRecord &capture)
{
    if (capture.settings.getParamCount() == 0)
        return QString();
    QString rows;
    for (const ChangedSetting &changed : changedSettings(capture.settings, capture.drive.type)) {
        const QString value = html::number(changed.setting.value), standard = html::number(changed.facts.standard);
        rows += QLatin1String("<tr>");
        for (const QString &cell :
             {changed.setting.name, value, changed.facts.unit, Text::tr("new drive: %1").arg(standard),
              settingCaption(changed.setting, changed.facts)})
            rows += QLatin1String("<td>") + cell.toHtmlEscaped() + QLatin1String("</td>");
        rows += QLatin1String("</tr>\n");
    }
    return html::section(Text::tr("Settings that are not a new drive's"),
                         rows.isEmpty() ? html::paragraph(Text::tr("None."))
                                        : QLatin1String("<table>\n") + rows + QLatin1String("</table>\n"));
}

} // namespace

QString savedCapturePage(const CaptureRecord &capture, const CaptureFigures &figures)
{
    const QString about = QLatin1String(style) + QString::fromLatin1(withoutScripts).arg(captureChart(capture)) +
                          QLatin1String("<section class=\"about\">\n") + captureSection(capture) +
                          figuresSection(figures) + settingsSection(capture) + QLatin1String("</section>\n");
    return capturePage(capture, toJson(figures), about);
}
