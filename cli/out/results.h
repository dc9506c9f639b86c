/// \file
/// What a command found, and its two forms on standard output: tab-separated lines, or one JSON document.
#ifndef VELBRIN_CLI_RESULTS_H
#define VELBRIN_CLI_RESULTS_H

#include "numbertext.h"

#include <QByteArray>
#include <QJsonValue>
#include <QList>
#include <QString>
#include <QStringList>
#include <QVariant>

/// Rows under named columns. Doubles print with as many of 15 digits as they need.
struct Table
{
    QStringList columns;
    QList<QVariantList> rows;
};

/// `lines` is what text output shows, `json` what --json shows.
struct Results
{
    QStringList lines;
    QJsonValue json = QJsonValue::Undefined;
};

/// One line a row, without the column names.
QStringList tabSeparated(const Table &table);
/// An array of objects with the column names as keys.
QJsonValue toJson(const Table &table);
inline Results toResults(const Table &table)
{
    return {tabSeparated(table), toJson(table)};
}

/// The bytes for standard output.
QByteArray printed(const Results &results, bool asJson);
/// The same on one line of JSON, or without an empty line in it: a block of many.
QByteArray printedBlock(const Results &results, bool asJson);

/// To standard output, at once. False when it did not get where it was sent (a full disk, a closed pipe).
bool writeOut(const QByteArray &text);

#endif
