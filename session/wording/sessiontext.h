/// \file
/// Translation of the session's texts: SessionText::tr("...") has the context "Connection", also in plain functions.
#ifndef SESSIONTEXT_H
#define SESSIONTEXT_H

#include <QCoreApplication>

struct SessionText
{
    Q_DECLARE_TR_FUNCTIONS(Connection)
};

#endif
