/// \file
/// Translation of the session's texts: SessionText::tr("...") has the context "Connection", also in plain functions.
#ifndef VELBRIN_SESSION_SESSIONTEXT_H
#define VELBRIN_SESSION_SESSIONTEXT_H

#include <QCoreApplication>

struct SessionText
{
    Q_DECLARE_TR_FUNCTIONS(Connection)
};

#endif
