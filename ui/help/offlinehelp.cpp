#include "offlinehelp.h"

#include "language.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QTextDocumentFragment>

namespace {

QString englishFolder()
{
    return QDir::current().filePath(QStringLiteral("help/"));
}

QString fileOf(const QString &name)
{
    const QString translated = englishFolder() + shownLanguage() + QLatin1Char('/') + name;
    return QFileInfo(translated).isFile() ? translated : englishFolder() + name;
}

void takeDefinitions(const QString &html, QHash<QString, QString> &texts)
{
    static const QRegularExpression definition(QStringLiteral("<dt id=\"([^\"]*)\">(.*?)(?=<dt|</dl>)"),
                                               QRegularExpression::DotMatchesEverythingOption);
    for (auto found = definition.globalMatch(html); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        texts.insert(match.captured(1), QTextDocumentFragment::fromHtml(match.captured(2)).toPlainText().simplified());
    }
}

} // namespace

QUrl offlineHelpPage(const QString &name, const QString &anchor)
{
    QUrl url = QUrl::fromLocalFile(fileOf(name));
    if (!anchor.isEmpty())
        url.setFragment(anchor);
    return url;
}

QUrl inShownLanguage(const QUrl &url)
{
    const QString file = QDir::cleanPath(url.toLocalFile());
    if (!url.isLocalFile() || !file.startsWith(englishFolder()) || !file.endsWith(QLatin1String(".htm")))
        return url;
    return offlineHelpPage(QFileInfo(file).fileName(), url.fragment());
}

QHash<QString, QString> offlineHelpTexts()
{
    QHash<QString, QString> texts;
    const QStringList names = QDir(englishFolder()).entryList({QStringLiteral("*.htm")}, QDir::Files);
    for (const QString &name : names) {
        QFile file(fileOf(name));
        if (file.open(QIODevice::ReadOnly))
            takeDefinitions(QString::fromUtf8(file.readAll()), texts);
    }
    return texts;
}
