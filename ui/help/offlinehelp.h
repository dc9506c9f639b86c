/// \file
/// The offline help pages on disk: English ones in "help", those of another language in a folder of its name below,
/// under the same file names and with the same anchors. A page that a language lacks is shown in English.
#ifndef VELBRIN_UI_OFFLINEHELP_H
#define VELBRIN_UI_OFFLINEHELP_H

#include <QHash>
#include <QString>
#include <QUrl>

/// Where a page is for the window's language: "Tuning tab.htm". An English address also where no such page exists.
QUrl offlineHelpPage(const QString &name, const QString &anchor = QString());

/// The same place of the same page in the window's language, for the address of a help page. Any other stays as it is.
QUrl inShownLanguage(const QUrl &url);

/// What the pages, in the window's language, say under each anchor of a definition list, as plain text. Reads files.
QHash<QString, QString> offlineHelpTexts();

#endif
