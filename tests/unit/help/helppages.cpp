#include "helppages.h"

#include "formreader.h"
#include "printqt.h"
#include "translations.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QUrl>
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
    const std::pair<const char *, const char *> entities[] = {{"&nbsp;", " "}, {"&minus;", "-"}, {"&times;", "x"},
                                                              {"&lt;", "<"},   {"&gt;", ">"},    {"&amp;", "&"}};
    for (const auto &[name, text] : entities)
        html.replace(QLatin1String(name), QLatin1String(text));
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

} // namespace

void readIn(const QString &wanted)
{
    language = wanted;
}

QString inLanguage(const QString &context, const QString &text)
{
    static QMap<QString, Translations> all;
    if (language == QLatin1String("en"))
        return text;
    if (!all.contains(language))
        all.insert(language,
                   readTranslations(QStringLiteral(VELBRIN_SOURCE_DIR "/translations/velbrin_%1.ts").arg(language)));
    return all[language].value({context, text}, {text}).text;
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
    if (controls.contains(language))
        return controls[language];
    const QRegularExpression mnemonic(QStringLiteral("^\\[([A-Z0-9]+)\\] "));
    QMap<QString, FormControl> &all = controls[language];
    for (const QString &file : formsFolder().entryList({"*page.ui"})) {
        const Form form = readForm(file);
        const auto shown = [&form](const QString &text) { return inLanguage(form.className, text).trimmed(); };
        for (const Widget &caption : form.widgets) { // labels carry the mnemonic, controls are named by it
            const QString name = mnemonic.match(caption.properties.value("text")).captured(1);
            if (name.isEmpty())
                continue;
            const Widget control = form.widgets.value(name);
            QStringList choices = control.choices;
            for (QString &choice : choices)
                choice = shown(choice);
            all[name] = {shown(caption.properties.value("text")).replace("&&", "&"), control.kind,
                         shown(control.properties.value("suffix")), choices};
        }
    }
    return all;
}
