/// \file
/// Pieces of HTML that the pages of this room are made of. Texts go in as text and are escaped here.
#ifndef VELBRIN_REPORT_HTML_H
#define VELBRIN_REPORT_HTML_H

#include "capture.h"

namespace html {

/// Caption and value.
using Facts = QList<QPair<QString, QString>>;

QString section(const QString &title, const QString &contents);
QString paragraph(const QString &text);
/// Two columns: what it is, and what it is there.
QString table(const Facts &rows);

/// With 15 digits, as few as it needs.
QString number(double value);
/// "not known" instead of 0.
QString known(int value, int base = 10);
/// "not known" when it is none.
QString when(const QDateTime &time);
/// Model, serial number, address and versions.
Facts identity(const DriveIdentity &drive);

} // namespace html

#endif
