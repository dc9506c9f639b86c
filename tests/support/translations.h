/// \file
/// The German translation as Linguist keeps it, taken apart for tests.
#ifndef VELBRIN_TESTS_TRANSLATIONS_H
#define VELBRIN_TESTS_TRANSLATIONS_H

#include <QFile>
#include <QMap>
#include <QPair>
#include <QXmlStreamReader>
#include <gtest/gtest.h>

struct Translated
{
    QString text;
    bool unfinished = false;
};
/// By context and English text; a text that is used in one context for two things has one.
using Translations = QMap<QPair<QString, QString>, Translated>;

inline Translations readTranslations(const QString &fileName)
{
    Translations texts;
    QFile file(fileName);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(fileName);
    QXmlStreamReader xml(&file);
    QString context, source;
    while (!xml.atEnd()) {
        xml.readNext();
        if (!xml.isStartElement())
            continue;
        const bool unfinished = xml.attributes().hasAttribute("type");
        if (xml.name() == QLatin1String("name"))
            context = xml.readElementText();
        else if (xml.name() == QLatin1String("source"))
            source = xml.readElementText(QXmlStreamReader::IncludeChildElements);
        else if (xml.name() == QLatin1String("translation"))
            texts[{context, source}] = {xml.readElementText(QXmlStreamReader::IncludeChildElements), unfinished};
    }
    return texts;
}

#endif
