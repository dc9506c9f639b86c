/// \file
/// A private temporary folder, and the ones that killed programs have left behind.
#ifndef VELBRIN_DESK_WORKFOLDER_H
#define VELBRIN_DESK_WORKFOLDER_H

#include <QTemporaryDir>

/// Removed with this object. A program that is killed cannot do so: the next one of the same prefix does, which it can
/// because a folder in use is locked.
class WorkFolder
{
public:
    /// `prefix` begins the folder's name in the system's place for temporary files. All programs that use it must do so
    /// through this class: a folder that is not locked counts as left behind after a minute.
    explicit WorkFolder(const QString &prefix);
    ~WorkFolder();
    WorkFolder(const WorkFolder &) = delete;
    WorkFolder &operator=(const WorkFolder &) = delete;

    /// Empty when it is there.
    QString error() const { return m_folder.isValid() ? QString() : m_folder.errorString(); }
    QString path() const { return m_folder.path(); }
    QString filePath(const QString &name) const { return m_folder.filePath(name); }

private:
    QTemporaryDir m_folder;
    int m_lock = -1;
};

#endif
