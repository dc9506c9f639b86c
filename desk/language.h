/// \file
/// The language that the window speaks: English, which the sources are written in, or a translation that the build has
/// put into the program (see translations/README.md). Numbers are not a matter of language: everything shows the
/// decimal point, and number fields take the comma as well.
#ifndef VELBRIN_DESK_LANGUAGE_H
#define VELBRIN_DESK_LANGUAGE_H

#include <QString>
#include <QStringList>

/// Where the program has its translations, "velbrin_de.qm" and so on.
extern const char *const builtInTranslations;

/// What can be chosen, as two letters: "en" first, then those with a translation in `folder`.
QStringList spokenLanguages(const QString &folder = QLatin1String(builtInTranslations));

/// The first of what the user reads that the window speaks, and "en" if there is none. `wanted` as
/// QLocale::uiLanguages() has it: "de-AT", "de", best first.
QString languageFor(const QStringList &wanted, const QStringList &spoken = spokenLanguages());

/// Makes every text that is looked up from now on speak this language, the toolkit's own included where its
/// translation is installed. To be called before the window is built, on the user-interface thread. A translation that
/// is missing or damaged is said in the log and leaves English.
void speak(const QString &language, const QString &folder = QLatin1String(builtInTranslations));

/// The language that the window speaks now, as two letters: "en" until speak() has loaded another.
QString shownLanguage();

#endif
