/// \file
/// A .ui file as Designer writes it, taken apart for tests.
#ifndef VELBRIN_TESTS_FORMREADER_H
#define VELBRIN_TESTS_FORMREADER_H

#include <QDir>
#include <QFile>
#include <QMap>
#include <QStringList>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

struct Widget
{
    QString kind;
    QMap<QString, QString> properties; ///< as texts
    QStringList choices;               ///< of a combo box
};
struct Form
{
    QString className; ///< the context of its texts
    QMap<QString, Widget> widgets;
    QStringList tabStops;
};

inline QDir formsFolder()
{
    return QDir(QStringLiteral(VELBRIN_SOURCE_DIR "/ui/forms"));
}

inline Form readForm(const QString &name)
{
    Form form;
    QFile file(formsFolder().filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(name);
    QXmlStreamReader xml(&file);
    QStringList open; // enclosing widgets
    QString property;
    while (!xml.atEnd()) {
        xml.readNext();
        const auto element = xml.name();
        const QString name = xml.attributes().value("name").toString();
        if (xml.isEndElement() && element == QLatin1String("widget"))
            open.removeLast();
        if (!xml.isStartElement())
            continue;
        Widget *widget = open.isEmpty() ? nullptr : &form.widgets[open.last()];
        if (element == QLatin1String("class") && open.isEmpty() && form.widgets.isEmpty()) {
            form.className = xml.readElementText();
        } else if (element == QLatin1String("widget")) {
            open.append(name);
            form.widgets[name].kind = xml.attributes().value("class").toString();
        } else if (element == QLatin1String("item") && widget && widget->kind == QLatin1String("QComboBox")) {
            widget->choices.append(QString());
        } else if (element == QLatin1String("property")) {
            property = name;
        } else if (element == QLatin1String("tabstop")) {
            form.tabStops.append(xml.readElementText());
        } else if (widget && !property.isEmpty()) {
            const QString text = xml.readElementText(QXmlStreamReader::IncludeChildElements);
            if (widget->choices.isEmpty())
                widget->properties[property] = text;
            else if (property == QLatin1String("text"))
                widget->choices.last() = text;
            property.clear();
        }
    }
    EXPECT_FALSE(xml.hasError()) << qPrintable(name + ": " + xml.errorString());
    return form;
}

#endif
