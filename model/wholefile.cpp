#include "wholefile.h"

#include <QFileInfo>
#include <QSaveFile>

QString writeWholeFile(const QString &name, const QByteArray &contents)
{
    const QFileInfo info(name);
    if (info.exists() && !info.isFile()) {
        QFile device(name);
        const bool written =
            device.open(QIODevice::WriteOnly) && device.write(contents) == contents.size() && device.flush();
        return written ? QString() : device.errorString();
    }
    QSaveFile file(name);
    const bool written = file.open(QIODevice::WriteOnly) && file.write(contents) == contents.size() && file.commit();
    return written ? QString() : file.errorString();
}
