#include "outputfile.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <QStorageInfo>

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

struct Text
{
    Q_DECLARE_TR_FUNCTIONS(OutputFile)
};

bool isPipe(const QString &name)
{
    struct stat info = {};
    return stat(QFile::encodeName(name).constData(), &info) == 0 && S_ISFIFO(info.st_mode);
}

} // namespace

OutputFile::OutputFile(const QString &name) : m_name(name)
{
    if (name.isEmpty())
        return;
    const QFileInfo info(name);
    // Renaming over a device would replace it.
    if (info.exists() && !info.isFile())
        m_file = std::make_unique<QFile>(name);
    else
        m_file = std::make_unique<QSaveFile>(name);
}

/// Opening a pipe waits for its reader, for ever; this way it fails without one.
bool OutputFile::openPipe()
{
    const int descriptor = ::open(QFile::encodeName(m_name).constData(), O_WRONLY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    fcntl(descriptor, F_SETFL, fcntl(descriptor, F_GETFL) & ~O_NONBLOCK);
    return static_cast<QFile *>(m_file.get())
        ->open(descriptor, QIODevice::WriteOnly | QIODevice::Unbuffered, QFileDevice::AutoCloseHandle);
}

/// What the system said last. Qt keeps it for some failures only and calls others unknown.
QString OutputFile::reason(qint64 size) const
{
    const int error = errno;
    // The last bytes that fit are written without an error.
    const QStorageInfo disk(QFileInfo(m_name).absolutePath());
    const bool isFull = qobject_cast<QSaveFile *>(m_file.get()) && disk.isValid() && disk.bytesAvailable() < size;
    if (error == ENOSPC || error == EDQUOT || isFull)
        return Text::tr("Full disk");
    if (error == ENXIO && isPipe(m_name))
        return Text::tr("nobody reads from this pipe");
    return m_file->error() != QFileDevice::NoError ? m_file->errorString() : qt_error_string(error);
}

QString OutputFile::open()
{
    errno = 0;
    if (!m_file || (isPipe(m_name) ? openPipe() : m_file->open(QIODevice::WriteOnly)))
        return QString();
    return Text::tr("%1 cannot be written: %2.").arg(m_name, reason(1));
}

QString OutputFile::write(const QByteArray &contents)
{
    if (!m_file)
        return QString();
    auto *saved = qobject_cast<QSaveFile *>(m_file.get());
    errno = 0;
    // Flushed by hand, since commit() does not notice a full disk: it would put the half of it in the old file's place.
    if (m_file->write(contents) == contents.size() && m_file->flush() && (!saved || saved->commit()))
        return QString();
    const QString problem = Text::tr("Error writing to %1: %2.").arg(m_name, reason(contents.size()));
    m_file.reset(); // takes the begun file away
    return problem;
}
