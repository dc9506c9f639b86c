/// \file
/// What the fuzzing targets share: a file that is only in memory, and a check that ends the run.
#ifndef VELBRIN_TESTS_MEMORYFILE_H
#define VELBRIN_TESTS_MEMORYFILE_H

#include <QByteArray>
#include <QString>

#include <cstdio>
#include <cstdlib>
#include <sys/mman.h>
#include <unistd.h>

/// Ends the program where `held` is false, which the fuzzer takes for a finding.
inline void require(bool held, const char *what, const QString &said = QString())
{
    if (held)
        return;
    std::fprintf(stderr, "NOT SO: %s %s\n", what, qPrintable(said));
    std::abort();
}

/// A plain file to whoever opens its path, and no disk has to turn for it.
class MemoryFile
{
public:
    MemoryFile() { require(m_fd >= 0, "a file in memory can be made"); }
    ~MemoryFile() { ::close(m_fd); }
    MemoryFile(const MemoryFile &) = delete;
    MemoryFile &operator=(const MemoryFile &) = delete;

    /// Replaces the content.
    void write(const QByteArray &bytes)
    {
        const bool written =
            ::ftruncate(m_fd, 0) == 0 && ::pwrite(m_fd, bytes.constData(), bytes.size(), 0) == bytes.size();
        require(written, "a file in memory can be written");
    }
    QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(m_fd); }

private:
    int m_fd = ::memfd_create("fuzz", MFD_CLOEXEC);
};

#endif
