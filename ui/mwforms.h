/// \file
/// The shell and the seven pages in one place, so that `m_form->NAME` finds a control whichever page it is on.
#ifndef MWFORMS_H
#define MWFORMS_H

#include "ui_connectpage.h"
#include "ui_faultlimitspage.h"
#include "ui_goalspage.h"
#include "ui_machinepage.h"
#include "ui_mw.h"
#include "ui_testingpage.h"
#include "ui_tuningpage.h"
#include "ui_welcomepage.h"

struct Forms : Ui_MW,
               Ui_WelcomePage,
               Ui_ConnectPage,
               Ui_GoalsPage,
               Ui_MachinePage,
               Ui_TuningPage,
               Ui_FaultLimitsPage,
               Ui_TestingPage
{
};

#endif
