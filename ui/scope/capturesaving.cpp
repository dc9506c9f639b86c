#include "capturesaving.h"

#include "captureplotter.h"
#include "capturetext.h"
#include "outputfile.h"
#include "plotpage.h"
#include "savedpage.h"

#include <QCoreApplication>
#include <QDir>

namespace {

struct SavingText
{
    Q_DECLARE_TR_FUNCTIONS(CaptureSaving)
};

QString commasFilter()
{
    return SavingText::tr("Columns for spreadsheets, with commas and units (*.csv)");
}

QByteArray pageOf(const KeptCapture &capture, QString &problem)
{
    const CaptureFigures figures = capture.figures ? *capture.figures : captureFigures(capture.record);
    return standalonePage(savedCapturePage(capture.record, figures), QDir::current().filePath(QStringLiteral("flot")),
                          problem)
        .toUtf8();
}

} // namespace

QString captureFilters()
{
    return SavingText::tr("Portable Network Graphics (*.png);;Raw data as text file (*.csv)") + QLatin1String(";;") +
           commasFilter() + QLatin1String(";;") +
           SavingText::tr("Page that can be opened again, for any browser (*.html)");
}

CaptureFormat captureFormatOf(const QString &fileName, const QString &filter)
{
    const auto endsIn = [&fileName](const char *ending) {
        return fileName.endsWith(QLatin1String(ending), Qt::CaseInsensitive);
    };
    if (endsIn(".png"))
        return CaptureFormat::Picture;
    if (endsIn(".html"))
        return CaptureFormat::Page;
    if (endsIn(".csv"))
        return filter == commasFilter() ? CaptureFormat::Commas : CaptureFormat::Columns;
    return CaptureFormat::None;
}

QString saveCapture(const KeptCapture &capture, CaptureFormat format, const QString &fileName)
{
    QString problem;
    QByteArray bytes;
    if (format == CaptureFormat::Page)
        bytes = pageOf(capture, problem);
    else if (format == CaptureFormat::Commas)
        bytes = captureToText(capture.record.channels);
    else
        bytes = CapturePlotter().captureDataCSV(capture.record.channels);
    if (!problem.isEmpty())
        return problem;
    OutputFile file(fileName);
    problem = file.open();
    return problem.isEmpty() ? file.write(bytes) : problem;
}
