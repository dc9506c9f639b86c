#include "outputfile.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QSaveFile>

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

QString OutputFile::open()
{
    if (!m_file || m_file->open(QIODevice::WriteOnly))
        return QString();
    return QCoreApplication::translate("OutputFile", "%1 cannot be written: %2.").arg(m_name, m_file->errorString());
}

QString OutputFile::write(const QByteArray &contents)
{
    if (!m_file)
        return QString();
    bool isWritten = m_file->write(contents) == contents.size() && m_file->flush();
    if (auto *file = qobject_cast<QSaveFile *>(m_file.get()))
        isWritten = file->commit() && isWritten;
    if (isWritten)
        return QString();
    return QCoreApplication::translate("OutputFile", "Error writing to %1: %2.").arg(m_name, m_file->errorString());
}
