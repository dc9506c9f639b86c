/// \file
/// Texts of this room that a user sees.
#ifndef ANALYSISTEXT_H
#define ANALYSISTEXT_H

#include <QCoreApplication>

struct AnalysisText
{
    Q_DECLARE_TR_FUNCTIONS(Analysis)
};

#endif
