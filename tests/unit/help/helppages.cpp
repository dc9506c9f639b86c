#include "helppages.h"

#include "printqt.h"

#include <QDir>
#include <QFile>
#include <QHash>
#include <QRegularExpression>
#include <QUrl>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

namespace {

QString language = QStringLiteral("en");

QRegularExpression pattern(const char *text)
{
    return QRegularExpression(QString::fromUtf8(text), QRegularExpression::DotMatchesEverythingOption);
}

QString withoutMarkup(QString html)
{
    html.remove(pattern("<[^>]*>"));
    const struct
    {
        const char *name, *text;
    } entities[] = {{"&nbsp;", " "}, {"&minus;", "-"}, {"&times;", "x"}, {"&lt;", "<"}, {"&gt;", ">"}, {"&amp;", "&"}};
    for (const auto &entity : entities)
        html.replace(QLatin1String(entity.name), QLatin1String(entity.text));
    return html.simplified();
}

HelpPage readPage(const QString &name)
{
    QFile file(helpFolder() + name);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
    const QString html = QString::fromUtf8(file.readAll());

    HelpPage page;
    for (auto id = pattern(" id=\"([^\"]*)\"").globalMatch(html); id.hasNext();) {
        const QString anchor = id.next().captured(1);
        if (page.anchors.contains(anchor))
            page.repeatedAnchors.append(anchor);
        page.anchors.insert(anchor);
    }
    for (auto reference = pattern("(?:href|src)=\"([^\"]*)\"").globalMatch(html); reference.hasNext();)
        page.references.append(QUrl::fromPercentEncoding(reference.next().captured(1).toUtf8()));
    const QRegularExpression entry = pattern("<dt(?: id=\"([^\"]*)\")?>(.*?)</dt>\\s*((?:<dd.*?</dd>\\s*)+)");
    for (auto found = entry.globalMatch(html); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        const QString range = pattern("class=\"range\">(.*?)</(?:dd|span)>").match(match.captured(3)).captured(1);
        const Definition definition{name, withoutMarkup(match.captured(2)), withoutMarkup(range),
                                    withoutMarkup(match.captured(3))};
        page.definitions.append(definition);
        if (!match.captured(1).isEmpty())
            page.byAnchor.insert(match.captured(1), definition);
    }
    return page;
}

/// Translations by context and text; a text that is used in one context for two things has one.
QHash<QString, QString> readTranslations()
{
    QHash<QString, QString> texts;
    QFile file(QStringLiteral(VELBRIN_SOURCE_DIR "/translations/velbrin_%1.ts").arg(language));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(file.fileName());
    QXmlStreamReader xml(&file);
    QString context, source;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("source"))
            source = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        else if (xml.name() == QLatin1String("translation"))
            texts.insert(context + '\n' + source, xml.readElementText(QXmlStreamReader::IncludeChildElements));
    }
    return texts;
}

/// The text of a property, inside its <string>, with the spaces that a suffix begins with.
QString stringOf(QXmlStreamReader &xml)
{
    return xml.readNextStartElement() ? xml.readElementText(QXmlStreamReader::IncludeChildElements) : QString();
}

/// Puts the controls of one form into the map: labels carry the mnemonic, controls are named by it.
void readForm(const QString &path, QMap<QString, FormControl> &controls)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
    QXmlStreamReader xml(&file);
    QString form;
    QStringList names;
    QStringList kinds;
    bool inItem = false;
    const QRegularExpression mnemonic(QStringLiteral("^\\[([A-Z0-9]+)\\] "));
    while (!xml.atEnd()) {
        xml.readNext();
        const bool isWidget = xml.name() == QLatin1String("widget");
        if (xml.isEndElement() && isWidget) {
            names.removeLast();
            kinds.removeLast();
        }
        if (!xml.isStartElement())
            continue;
        if (xml.name() == QLatin1String("class"))
            form = xml.readElementText();
        if (isWidget) {
            names.append(xml.attributes().value("name").toString());
            kinds.append(xml.attributes().value("class").toString());
            controls[names.last()].kind = kinds.last();
        }
        inItem = xml.name() == QLatin1String("item") ||
                 (inItem && (xml.name() == QLatin1String("property") || xml.name() == QLatin1String("string")));
        if (xml.name() != QLatin1String("property") || names.isEmpty())
            continue;
        const QString property = xml.attributes().value("name").toString();
        if (property != QLatin1String("text") && property != QLatin1String("suffix"))
            continue;
        const QString text = inLanguage(form, stringOf(xml)).trimmed();
        if (property == QLatin1String("suffix"))
            controls[names.last()].unit = text;
        else if (inItem && kinds.last() == QLatin1String("QComboBox"))
            controls[names.last()].choices.append(text);
        else if (mnemonic.match(text).hasMatch())
            controls[mnemonic.match(text).captured(1)].label = QString(text).replace("&&", "&");
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(path);
}

} // namespace

void readIn(const QString &wanted)
{
    language = wanted;
}

QString inLanguage(const QString &context, const QString &text)
{
    static QHash<QString, QHash<QString, QString>> all;
    if (language == QLatin1String("en"))
        return text;
    if (!all.contains(language))
        all.insert(language, readTranslations());
    return all[language].value(context + '\n' + text, text);
}

QString helpFolder()
{
    const QString folder = QStringLiteral(VELBRIN_SOURCE_DIR "/help/");
    return language == QLatin1String("en") ? folder : folder + language + '/';
}

const QMap<QString, HelpPage> &helpPages()
{
    static QMap<QString, QMap<QString, HelpPage>> pages;
    if (!pages.contains(language)) {
        const QStringList files = QDir(helpFolder()).entryList({"*.htm"});
        for (const QString &file : files)
            pages[language].insert(file, readPage(file));
    }
    return pages[language];
}

Definition definitionOf(const QString &anchor)
{
    QList<Definition> found;
    for (const HelpPage &page : helpPages()) {
        if (page.byAnchor.contains(anchor))
            found.append(page.byAnchor.value(anchor));
    }
    EXPECT_EQ(found.size(), 1) << "definitions of " << qPrintable(anchor);
    return found.isEmpty() ? Definition() : found.first();
}

const QMap<QString, FormControl> &formControls()
{
    static QMap<QString, QMap<QString, FormControl>> controls;
    if (!controls.contains(language)) {
        QMap<QString, FormControl> &all = controls[language];
        const QDir folder(QStringLiteral(VELBRIN_SOURCE_DIR "/ui/forms"));
        const QStringList files = folder.entryList({"*page.ui"});
        for (const QString &file : files)
            readForm(folder.filePath(file), all);
        for (auto control = all.begin(); control != all.end();)
            control = control->label.isEmpty() ? all.erase(control) : std::next(control);
    }
    return controls[language];
}
