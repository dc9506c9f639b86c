/// \file
/// The web engine's processes, for tests that end them.
#ifndef VELBRIN_TESTS_PAGEPROCESSES_H
#define VELBRIN_TESTS_PAGEPROCESSES_H

#include <QDir>
#include <QFile>
#include <algorithm>
#include <unistd.h>
#include <vector>

/// The processes below this one that draw pages: children of the engine's own first process.
inline std::vector<pid_t> pageProcesses()
{
    std::vector<std::vector<pid_t>> generations{{getpid()}, {}, {}};
    for (int i = 0; i < 2; ++i) {
        for (const QString &entry : QDir("/proc").entryList({"[0-9]*"}, QDir::Dirs)) {
            QFile stat("/proc/" + entry + "/stat");
            const QByteArray line = stat.open(QIODevice::ReadOnly) ? stat.readAll() : QByteArray();
            const pid_t parent = line.mid(line.lastIndexOf(')') + 2).split(' ').value(1).toInt();
            if (std::count(generations[i].begin(), generations[i].end(), parent) > 0)
                generations[i + 1].push_back(entry.toInt());
        }
    }
    return generations[2];
}

#endif
