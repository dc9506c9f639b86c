#include "capturefile.h"

#include "capturejson.h"
#include "capturepage.h"
#include "captureplotter.h"
#include "capturetext.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>

namespace {

constexpr qint64 largestFile = 8 << 20; // a page with all its scripts has some 400 KB

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(CaptureRecord)
};

QString readBytes(const QString &fileName, QByteArray &bytes)
{
    QFile file(fileName);
    // A pipe or a device would be waited for.
    if (QFileInfo(fileName).exists() && !QFileInfo(fileName).isFile())
        return Text::tr("The capture cannot be opened: it is not a plain file.");
    if (!file.open(QIODevice::ReadOnly))
        return Text::tr("The capture cannot be opened: %1.").arg(file.errorString());
    if (file.size() > largestFile)
        return Text::tr("The file is far too large to be a capture.");
    bytes = file.read(file.size());
    return file.error() == QFileDevice::NoError ? QString()
                                                : Text::tr("The capture cannot be read: %1.").arg(file.errorString());
}

} // namespace

QString readCaptureFile(const QString &fileName, const QList<CaptureData> &known, CaptureRecord *capture)
{
    QByteArray bytes;
    const QString problem = readBytes(fileName, bytes);
    if (!problem.isEmpty())
        return problem;
    if (bytes.startsWith("\xef\xbb\xbf")) // a byte order mark that an editor or a spreadsheet has put there
        bytes.remove(0, 3);
    const QByteArray start = bytes.left(1000).trimmed();
    if (start.startsWith('{'))
        return captureFromJson(bytes, capture);
    if (!start.startsWith('<'))
        return captureFromText(bytes, known, capture);
    const QByteArray block = captureBlockOf(bytes);
    return block.isEmpty()
               ? Text::tr("This page holds no capture: it was cut off, or saved by an older version of Velbrin.")
               : captureFromJson(block, capture);
}

QString plotPageOf(const CaptureRecord &capture, const QString &belowCharts)
{
    QList<CaptureData> channels = capture.channels;
    for (CaptureData &channel : channels) {
        // The name stands in a script's text, which the chart takes for HTML.
        channel.name = channel.name.toHtmlEscaped();
        channel.name.replace(QLatin1Char('\\'), QLatin1String("&#92;")).replace(QLatin1Char('\n'), QLatin1Char(' '));
        channel.name.replace(QLatin1Char('\r'), QLatin1Char(' '));
        channel.name.replace(QLatin1Char('%'), QLatin1String("&#37;")); // no placeholder of the page
    }
    QString model = capture.drive.model.toHtmlEscaped();
    model.replace(QLatin1Char('\\'), QLatin1String("&#92;")).replace(QLatin1Char('%'), QLatin1String("&#37;"));
    QString below = belowCharts;
    below.replace(QLatin1String("%D"), QLatin1String("&#37;D")); // no placeholder of the page either
    return CapturePlotter().generatePlotPage(channels, below + capture.settings.getParamsHTMLList(), model);
}

QString capturePage(const CaptureRecord &capture, const QJsonObject &extra, const QString &belowCharts)
{
    return withCaptureBlock(plotPageOf(capture, belowCharts), captureToJson(capture, extra));
}
