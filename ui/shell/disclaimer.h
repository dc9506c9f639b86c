/// \file
/// The safety notice that stands before every start.
#ifndef VELBRIN_UI_DISCLAIMER_H
#define VELBRIN_UI_DISCLAIMER_H

#include <QCoreApplication>

class QWidget;

/// A modal box over the window; nothing is remembered, so it comes at every start.
class Disclaimer
{
    Q_DECLARE_TR_FUNCTIONS(Disclaimer)

public:
    /// Whether the user agrees. Otherwise a farewell is shown and the window's close() is queued.
    static bool isAgreedTo(QWidget *window);
};

#endif
