// Any bytes as a saved capture: refused without a change, or taken over as something that figures, pages and reports
// can be made of and that comes back from a saved page as it was.
#include "capturefile.h"
#include "capturejson.h"
#include "capturetext.h"
#include "memoryfile.h"
#include "report.h"
#include "savedpage.h"

#include <QJsonDocument>

#include <cmath>

namespace {

/// Some of the recorder's.
QList<CaptureData> knownChannels()
{
    QList<CaptureData> known;
    for (const char *key : {"posreference", "posmeas", "torqueref", "torquemeas"}) {
        CaptureData channel;
        channel.key = channel.name = QString::fromLatin1(key);
        channel.group = QStringLiteral("Group");
        known.append(channel);
    }
    return known;
}

QByteArray blockOf(const CaptureRecord &capture)
{
    return QJsonDocument(captureToJson(capture)).toJson();
}

void checkTaken(const CaptureRecord &capture)
{
    require(capture.samplePeriod >= 1e-6 && capture.samplePeriod <= 3600, "time goes on between samples");
    require(capture.note.size() <= longestNote, "a note has its limit");
    for (const CaptureData &channel : capture.channels) {
        require(channel.enabled && channel.scale != 0.0, "a channel can be shown", channel.key);
        for (const auto &sample : channel.samples)
            require(std::abs(sample.second) <= 1e15, "a sample is a sane number", channel.key);
    }
    for (int i = 0; i < capture.settings.getParamCount(); ++i)
        require(std::isfinite(capture.settings.getParam(i).value), "a setting is a number");
}

/// Numbers in JSON: those that are none would be null, and its names must not be lost on the way.
void checkFigures(const CaptureFigures &figures)
{
    for (const FigureLine &line : figureLines(figures))
        require(!line.caption.isEmpty() && !line.value.isEmpty() && !line.value.contains(QLatin1String("nan")),
                "each figure has a value or a reason", line.name);
}

void checkRoundTrip(const CaptureRecord &capture, const QByteArray &page)
{
    static MemoryFile file;
    file.write(page);
    CaptureRecord again;
    const QString said = readCaptureFile(file.path(), knownChannels(), &again);
    require(said.isEmpty(), "a saved page can be opened:", said);
    require(blockOf(again) == blockOf(capture), "a saved page holds what was saved");
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size)
{
    static MemoryFile file;
    file.write(QByteArray(reinterpret_cast<const char *>(data), static_cast<int>(size)));
    CaptureRecord capture;
    capture.note = QStringLiteral("before");
    const QByteArray before = blockOf(capture);
    const QString said = readCaptureFile(file.path(), knownChannels(), &capture);
    if (!said.isEmpty()) {
        require(blockOf(capture) == before, "a refused file changes nothing:", said);
        require(!said.contains(QLatin1Char('<')) && said.size() < 400, "a refusal shows nothing of the file:", said);
        return 0;
    }
    checkTaken(capture);
    const CaptureFigures figures = captureFigures(capture);
    checkFigures(figures);
    if (!capture.channels.isEmpty())
        checkRoundTrip(capture, savedCapturePage(capture, figures).toUtf8());
    captureToText(capture.channels);
    Report report;
    report.drive = capture.drive;
    report.settings = capture.settings;
    report.captures = {{QStringLiteral("capture"), capture}};
    report.stopTest = capture;
    reportPage(report);
    return 0;
}
