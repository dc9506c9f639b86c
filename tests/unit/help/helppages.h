/// \file
/// The help pages and the forms, taken apart for the tests: in one language at a time.
#ifndef VELBRIN_TESTS_HELPPAGES_H
#define VELBRIN_TESTS_HELPPAGES_H

#include <QMap>
#include <QSet>
#include <QString>
#include <QStringList>

/// An entry of a definition list: a control, a fault bit, a message.
struct Definition
{
    QString page;
    QString term;  ///< as read, without markup
    QString range; ///< the line in small print: range and default, or the choices; may be empty
    QString text;  ///< all of it
};

struct HelpPage
{
    QSet<QString> anchors;
    QStringList repeatedAnchors;
    QStringList references; ///< targets of links, pictures and style sheets, decoded
    QList<Definition> definitions;
    QMap<QString, Definition> byAnchor;
};

/// Which pages, and whose names of controls, everything below is about: "en" or "de".
void readIn(const QString &language);
/// A text of the program in that language, as its translation has it; an English one comes back as it is.
QString inLanguage(const QString &context, const QString &text);

/// Folder of the pages, with a slash at the end.
QString helpFolder();
/// By file name.
const QMap<QString, HelpPage> &helpPages();
/// The one definition with this anchor; fails the test and gives an empty one where there is none, or more than one.
Definition definitionOf(const QString &anchor);

/// A labelled control of the window.
struct FormControl
{
    QString label; ///< of the label or check box, such as "[KVP] Velocity P gain"
    QString kind;  ///< class of the control
    QString unit;  ///< suffix of its value
    QStringList choices;
};

/// Every control that has a mnemonic in brackets, by mnemonic.
const QMap<QString, FormControl> &formControls();

#endif
