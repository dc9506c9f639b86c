#include "language.h"

#include <QCoreApplication>
#include <QDebug>
#include <QDir>
#include <QLibraryInfo>
#include <QPointer>
#include <QTranslator>

const char *const builtInTranslations = ":/translations";

namespace {

const char *const filePrefix = "velbrin_";
const char *const fileEnding = ".qm";
// The toolkit's own, as its packages name them: buttons and dialogs, and the help pane's context menu.
const char *const toolkitPrefixes[] = {"qtbase_", "qtwebengine_"};

const QString english = QStringLiteral("en");

QString &shown()
{
    static QString language = english;
    return language;
}

/// Belongs to the application; true when the file could be read.
bool install(const QString &file, const QString &folder)
{
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(file, folder) && QCoreApplication::installTranslator(translator))
        return true;
    delete translator;
    return false;
}

void removeInstalled()
{
    const auto translators = QCoreApplication::instance()->findChildren<QTranslator *>(Qt::FindDirectChildrenOnly);
    qDeleteAll(translators); // which takes them out
}

} // namespace

QStringList spokenLanguages(const QString &folder)
{
    QStringList languages = {english};
    const QString pattern = QLatin1String(filePrefix) + QLatin1Char('*') + QLatin1String(fileEnding);
    for (const QString &file : QDir(folder).entryList({pattern}, QDir::Files, QDir::Name))
        languages << file.mid(int(qstrlen(filePrefix))).chopped(int(qstrlen(fileEnding)));
    return languages;
}

QString languageFor(const QStringList &wanted, const QStringList &spoken)
{
    for (const QString &locale : wanted) {
        const QString language = locale.section(QLatin1Char('-'), 0, 0);
        if (spoken.contains(language))
            return language;
    }
    return english;
}

void speak(const QString &language, const QString &folder)
{
    removeInstalled();
    shown() = english;
    if (language == english)
        return;
    if (!install(QLatin1String(filePrefix) + language, folder)) {
        qWarning("The translation \"%s\" is missing or damaged; the window speaks English.", qPrintable(language));
        return;
    }
    shown() = language;
    const QString toolkit = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
    for (const char *prefix : toolkitPrefixes)
        install(QLatin1String(prefix) + language, toolkit);
}

QString shownLanguage()
{
    return shown();
}
