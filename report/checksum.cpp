#include "checksum.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

namespace {

constexpr qint64 largestFile = 8 << 20;

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(Report)
};

} // namespace

QString settingsChecksum(const PrintedSettings &settings)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    for (const auto &[name, value] : settings)
        hash.addData((name + QLatin1Char('=') + value + QLatin1Char('\n')).toUtf8());
    return QString::fromLatin1(hash.result().toHex());
}

ReportCheck checkReport(const QByteArray &page)
{
    // No text of a user or of a file can look like these: "<" is escaped there. A browser that saves the page may put
    // other white space between the elements.
    static const QRegularExpression row(
        QStringLiteral("<th scope=\"row\">([A-Za-z0-9]+)</th>\\s*<td class=\"value\">([^<]*)</td>"));
    static const QRegularExpression printed(QStringLiteral("<code id=\"settings-checksum\">([0-9a-f]{64})</code>"));
    const QString text = QString::fromUtf8(page);
    ReportCheck check;
    PrintedSettings settings;
    for (auto found = row.globalMatch(text); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        settings.append({match.captured(1), match.captured(2)});
    }
    check.settings = settings.size();
    check.checksum = printed.match(text).captured(1);
    if (settings.isEmpty() || check.checksum.isEmpty() || text.count(printed) != 1)
        check.problem = Text::tr("This is no commissioning report of Velbrin.");
    else if (settingsChecksum(settings) != check.checksum)
        check.problem =
            Text::tr("The checksum is not that of the settings in the report: something was changed in it.");
    return check;
}

ReportCheck checkReportFile(const QString &fileName)
{
    ReportCheck check;
    QFile file(fileName);
    // A pipe or a device would be waited for.
    if (QFileInfo(fileName).exists() && !QFileInfo(fileName).isFile())
        check.problem = Text::tr("The report cannot be opened: it is not a plain file.");
    else if (!file.open(QIODevice::ReadOnly))
        check.problem = Text::tr("The report cannot be opened: %1.").arg(file.errorString());
    else if (file.size() > largestFile)
        check.problem = Text::tr("The file is far too large to be a report.");
    return check.problem.isEmpty() ? checkReport(file.read(file.size())) : check;
}
