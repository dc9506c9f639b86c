/// \file
/// A file that is opened before the work that fills it begins, and that is there as a whole or not at all.
#ifndef VELBRIN_MODEL_OUTPUTFILE_H
#define VELBRIN_MODEL_OUTPUTFILE_H

#include <QFileDevice>
#include <QString>

#include <memory>

/// Writes beside the file and renames at the end, so that a failure leaves an older file as it was; into what is no
/// plain file (a pipe, a device) it writes directly. Without write(), nothing is left behind.
class OutputFile
{
public:
    /// An empty name makes a file that is not wanted: every call succeeds and does nothing.
    explicit OutputFile(const QString &name);

    bool isWanted() const { return m_file != nullptr; }
    QString name() const { return m_name; }
    /// Whether it can be written, as far as one can know. Never waits: a pipe that nobody reads is refused. Empty on
    /// success, else the text to show.
    QString open();
    /// The whole contents; once. Empty on success, else the text to show.
    QString write(const QByteArray &contents);

private:
    bool openPipe();
    QString reason(qint64 size) const;

    QString m_name;
    std::unique_ptr<QFileDevice> m_file;
};

#endif
