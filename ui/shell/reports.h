/// \file
/// Where the pages and desks say what they did, or did not do.
#ifndef REPORTS_H
#define REPORTS_H

class ErrorWindow;
class QStatusBar;

struct Reports
{
    QStatusBar *status;
    ErrorWindow *errors;
};

#endif
