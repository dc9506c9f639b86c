/// \file
/// Texts of the scope's bar and tables in the language of the program.
#ifndef VELBRIN_UI_SCOPETEXTS_H
#define VELBRIN_UI_SCOPETEXTS_H

#include <QCoreApplication>
#include <QJsonObject>

struct ScopeText
{
    Q_DECLARE_TR_FUNCTIONS(Scope)
};

/// By the English text, as it stands in the scripts.
QJsonObject scopeTexts();

/// A figure's name in few letters, for the line above the charts; empty for those that do not stand there.
QString briefCaption(const QString &figure);

#endif
