/// \file
/// Writing a file whole or not at all.
#ifndef WHOLEFILE_H
#define WHOLEFILE_H

#include <QByteArray>
#include <QString>

/// Puts `contents` into a file by way of a temporary one beside it: a full disk or a crash leaves an old file as it was.
/// Devices, pipes and the like are written directly, as a rename would replace them. Returns an empty text, or what the
/// system said.
QString writeWholeFile(const QString &name, const QByteArray &contents);

#endif
