/// \file
/// The commissioning report: one self-contained HTML page that can be read without scripts and printed.
#ifndef VELBRIN_REPORT_REPORT_H
#define VELBRIN_REPORT_REPORT_H

#include "capture.h"
#include "stopfigures.h"

#include <QMap>

struct ReportedCapture
{
    QString title; ///< such as the file's name
    CaptureRecord record;
};

/// Everything the page is made of. All texts are plain text; the page escapes them.
struct Report
{
    QString machine; ///< the user's name for it; may be empty
    DriveIdentity drive;
    Parameters settings;          ///< of that drive, all of them
    QString program;              ///< version that makes the report
    QDateTime time;               ///< of the report
    QMap<QString, QString> notes; ///< the user's words on a setting, by its name
    QList<ReportedCapture> captures;
    std::optional<CaptureRecord> stopTest;
};

/// Name and value of the settings of the report's model as they are printed, writable ones only.
QList<QPair<QString, QString>> printedSettings(const Report &report);

/// UTF-8. Identity and firmware; every setting with unit, limits, default and whether it differs; the notes; captures
/// with chart, figures and axis sheet; stop test; checklist; date, lines to sign, and the checksum of the settings.
/// Takes some 20 ms a capture; any thread.
QByteArray reportPage(const Report &report);

#endif
