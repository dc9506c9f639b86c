#include "workfolder.h"

#include <QDir>
#include <QFile>

#include <ctime>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr std::time_t youngest = 60; // s: another program may just be about to lock its own

int openFolder(const QString &path)
{
    return open(QFile::encodeName(path).constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

bool isLeftBehind(int folder)
{
    struct stat info
    {
    };
    return fstat(folder, &info) == 0 && info.st_uid == geteuid() && std::time(nullptr) - info.st_mtime > youngest &&
           flock(folder, LOCK_EX | LOCK_NB) == 0;
}

void removeLeftBehind(const QString &prefix)
{
    const QDir place(QDir::tempPath());
    for (const QString &name : place.entryList({prefix + QStringLiteral("??????")}, QDir::Dirs | QDir::NoSymLinks)) {
        const int folder = openFolder(place.filePath(name));
        if (folder < 0)
            continue;
        if (isLeftBehind(folder))
            QDir(place.filePath(name)).removeRecursively();
        close(folder);
    }
}

} // namespace

WorkFolder::WorkFolder(const QString &prefix) : m_folder(QDir::tempPath() + u'/' + prefix + QStringLiteral("XXXXXX"))
{
    if (!m_folder.isValid())
        return;
    m_lock = openFolder(m_folder.path());
    flock(m_lock, LOCK_EX | LOCK_NB);
    removeLeftBehind(prefix);
}

WorkFolder::~WorkFolder()
{
    if (m_lock >= 0)
        close(m_lock);
}
