/// \file
/// Small files that tests put somewhere and look into, and a disk that is full.
#ifndef VELBRIN_TESTS_TESTFILES_H
#define VELBRIN_TESTS_TESTFILES_H

#include <QFile>
#include <csignal>
#include <gtest/gtest.h>
#include <sys/resource.h>

inline QByteArray contents(const QString &name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
}

inline void put(const QString &name, const QByteArray &bytes)
{
    QFile file(name);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size()) << name.toStdString();
}

/// No file grows beyond 100 bytes while this lives: what a full disk does, for a test that has no disk to fill.
class SmallDisk
{
public:
    SmallDisk() : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small = {100, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
    }
    ~SmallDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }

private:
    rlimit m_before{};
    void (*m_handler)(int);
};

#endif
