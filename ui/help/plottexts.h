/// \file
/// What the program puts into a plot page: scripts, and values that no text in them turns into markup or script.
#ifndef VELBRIN_UI_PLOTTEXTS_H
#define VELBRIN_UI_PLOTTEXTS_H

#include <QJsonObject>
#include <QString>

/// What runs in every plot page, behind the page's own scripts: resources/scope/*.js and plotview.js as one script,
/// since the engine keeps several in no order.
QString plotScripts();
/// A text as a literal of the script language.
QString scriptLiteral(const QString &text);
/// JSON that can stand in a page and in a script: no text in it ends an element or begins markup.
QString harmlessJson(const QJsonObject &object);
/// The plot page with what the scope's scripts want to know in it.
QString withScope(const QString &page, const QJsonObject &scope);

#endif
