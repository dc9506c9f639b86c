/// \file
/// What "status" shows: the connection, the drive's identity, and its registers in words.
#ifndef VELBRIN_CLI_STATUSREPORT_H
#define VELBRIN_CLI_STATUSREPORT_H

#include "drivestate.h"
#include "results.h"

class DriveClient;
class Parameters;

struct StatusReport
{
    /// A named value; `key` is its name in JSON, where it must not be translated.
    struct Line
    {
        const char *key;
        QString caption;
        QVariant value;
    };
    struct Panel
    {
        const char *key;
        QString caption;
        QStringList lines;
    };
    QList<Line> identity;
    QList<Panel> panels; ///< inputs, status, faults
    DriveState drive;
};

StatusReport statusReport(const DriveClient &client, const Parameters &list, const DriveState &live);

Results toResults(const StatusReport &report);

#endif
