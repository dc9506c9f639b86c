/// \file
/// Text in the layout of QSettings' INI format, read from and written to memory.
///
/// QSettings itself is not used for files that a user picks: it leaves lock files beside them, keeps what it has read,
/// takes a missing file for an empty one, waits for ever on a pipe, and rebuilds any object that a file asks for.
#ifndef VELBRIN_MODEL_INITEXT_H
#define VELBRIN_MODEL_INITEXT_H

#include <QByteArray>
#include <QHash>
#include <QString>

/// The values by path: "Section/key", in arrays "Section/1/key". Keys before the first section have no "Section/".
using IniValues = QHash<QString, QString>;

/// Reads every line that can be read; of equal keys the last one counts. Returns false when a line was none of
/// "[section]", "key=value", comment or blank.
bool parseIniText(const QByteArray &text, IniValues *values);

/// The value of `path`, its case ignored where no key is spelled exactly so; empty when there is none.
QString iniValueIgnoringCase(const IniValues &values, const QString &path);

/// A string as it stands behind the "=", quoted and escaped as far as QSettings needs it to read the same string back.
QByteArray iniString(const QString &text);

#endif
