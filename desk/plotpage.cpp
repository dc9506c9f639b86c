#include "plotpage.h"

#include <QCoreApplication>
#include <QFile>
#include <QRegularExpression>

namespace {

/// Contents of the file that the page calls "../NAME".
QString fileText(const QString &flotFolder, const QString &name, QString &problem)
{
    QFile file(flotFolder + QLatin1Char('/') + name);
    if (file.open(QIODevice::ReadOnly))
        return QString::fromUtf8(file.readAll());
    problem =
        QCoreApplication::translate("PlotPage", "%1 cannot be read: %2.").arg(file.fileName(), file.errorString());
    return QString();
}

/// Puts the text of the referenced file, between `begin` and `end`, in the place of every reference.
void inlineFiles(QString &page, const char *reference, const char *begin, const char *end, const QString &flotFolder,
                 QString &problem)
{
    const QRegularExpression expression{QLatin1String(reference)};
    QRegularExpressionMatch match = expression.match(page);
    while (match.hasMatch()) {
        QString text = fileText(flotFolder, match.captured(1), problem);
        // The browser would take it for the end of the script.
        text.replace(QLatin1String("</script"), QLatin1String("<\\/script"), Qt::CaseInsensitive);
        text = QLatin1String(begin) + text + QLatin1String(end);
        page.replace(match.capturedStart(), match.capturedLength(), text);
        match = expression.match(page, match.capturedStart() + text.size());
    }
}

} // namespace

QString standalonePage(const QString &page, const QString &flotFolder, QString &problem)
{
    QString result = page;
    // What a browser of long ago needed.
    result.remove(QRegularExpression(QStringLiteral("<!--.*?-->\\n?"), QRegularExpression::DotMatchesEverythingOption));
    inlineFiles(result, "<link href=\"\\.\\./([^\"]*)\"[^>]*>", "<style type=\"text/css\">\n", "</style>", flotFolder,
                problem);
    inlineFiles(result, "<script[^>]* src=\"\\.\\./([^\"]*)\"></script>", "<script type=\"text/javascript\">\n",
                "\n</script>", flotFolder, problem);
    result.replace(QLatin1String("href=\"tdext://reloadplots\""),
                   QLatin1String("href=\"javascript:location.reload()\""));
    result.remove(
        QRegularExpression(QStringLiteral("<a href=\"tdext://[^\"]*\">[^<]*</a>&nbsp;&nbsp;\\|&nbsp;&nbsp;")));
    result.replace(QLatin1String("<title>Flot Examples</title>"), QLatin1String("<title>Velbrin servo scope</title>"));
    return problem.isEmpty() ? result : QString();
}
