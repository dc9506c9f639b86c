/// \file
/// A checksum of the settings in a report, from the numbers that the reader sees.
#ifndef VELBRIN_REPORT_CHECKSUM_H
#define VELBRIN_REPORT_CHECKSUM_H

#include <QByteArray>
#include <QList>
#include <QPair>
#include <QString>

/// Names and values as they are printed, in the report's order.
using PrintedSettings = QList<QPair<QString, QString>>;

/// SHA-256 over "NAME=VALUE\n" of each, as hexadecimal digits.
QString settingsChecksum(const PrintedSettings &settings);

struct ReportCheck
{
    QString problem;  ///< why the report is not in order, one sentence; empty when it is
    int settings = 0; ///< how many stand in its table
    QString checksum; ///< as printed
};

/// Takes the settings out of a report's table and holds them against the checksum that it prints.
ReportCheck checkReport(const QByteArray &page);

/// The same for a file; only plain files of up to 8 MB are read.
ReportCheck checkReportFile(const QString &fileName);

#endif
