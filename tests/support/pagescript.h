/// \file
/// Looks into the page of a HelpView, whose engine answers through the event loop.
#ifndef VELBRIN_TESTS_PAGESCRIPT_H
#define VELBRIN_TESTS_PAGESCRIPT_H

#include "helpview.h"
#include "waitfor.h"

#include <QTest>

/// What a script in the page returns; nothing when the engine does not answer.
inline QVariant runScript(HelpView *view, const QString &script)
{
    struct Answer
    {
        bool came = false;
        QVariant value;
    };
    const auto answer = std::make_shared<Answer>();
    view->runScript(script, [answer](const QVariant &value) { *answer = {true, value}; });
    return waitFor([answer] { return answer->came; }, 10000) ? answer->value : QVariant();
}

inline QString pageText(HelpView *view)
{
    return runScript(view, QStringLiteral("document.body ? document.body.innerText.trim() : ''")).toString();
}

#endif
