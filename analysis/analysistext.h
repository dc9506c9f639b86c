/// \file
/// Texts of this room that a user sees.
#ifndef VELBRIN_ANALYSIS_ANALYSISTEXT_H
#define VELBRIN_ANALYSIS_ANALYSISTEXT_H

#include <QCoreApplication>

struct AnalysisText
{
    Q_DECLARE_TR_FUNCTIONS(Analysis)
};

#endif
