/// \file
/// Where the pages and desks say what they did, or did not do.
#ifndef VELBRIN_UI_REPORTS_H
#define VELBRIN_UI_REPORTS_H

class ErrorWindow;
class QStatusBar;

struct Reports
{
    QStatusBar *status;
    ErrorWindow *errors;
};

#endif
