#include "helppages.h"

#include "formreader.h"
#include "printqt.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QUrl>
#include <gtest/gtest.h>

namespace {

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

} // namespace

QString helpFolder()
{
    return QStringLiteral(VELBRIN_SOURCE_DIR "/help/");
}

const QMap<QString, HelpPage> &helpPages()
{
    static const QMap<QString, HelpPage> pages = [] {
        QMap<QString, HelpPage> all;
        const QStringList files = QDir(helpFolder()).entryList({"*.htm"});
        for (const QString &file : files)
            all.insert(file, readPage(file));
        return all;
    }();
    return pages;
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
    static const QMap<QString, FormControl> controls = [] {
        const QRegularExpression mnemonic(QStringLiteral("^\\[([A-Z0-9]+)\\] "));
        QMap<QString, FormControl> all;
        for (const QString &file : formsFolder().entryList({"*page.ui"})) {
            const Form form = readForm(file);
            for (const Widget &caption : form.widgets) { // labels carry the mnemonic, controls are named by it
                const QString text = caption.properties.value("text"), name = mnemonic.match(text).captured(1);
                const Widget control = form.widgets.value(name);
                if (!name.isEmpty())
                    all[name] = {QString(text).replace("&&", "&"), control.kind,
                                 control.properties.value("suffix").trimmed(), control.choices};
            }
        }
        return all;
    }();
    return controls;
}
