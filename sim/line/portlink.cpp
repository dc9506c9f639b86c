#include "portlink.h"

#include "pseudoterminal.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace sim {

namespace {

/// What a link points at; empty when there is none.
std::string targetOf(const std::string &path)
{
    char target[256];
    const ssize_t length = readlink(path.c_str(), target, sizeof target);
    return length > 0 ? std::string(target, static_cast<std::size_t>(length)) : std::string();
}

bool exists(const std::string &path)
{
    struct stat info
    {
    };
    return lstat(path.c_str(), &info) == 0;
}

} // namespace

/// Empty when the name may be taken over: nothing there, our own link, or the left-over of a run that was killed.
std::string PortLink::inTheWay(const std::string &port) const
{
    const std::string target = targetOf(m_path);
    if (!exists(m_path) || target == port || (!m_made.empty() && target == m_made))
        return {};
    if (target.rfind("/dev/pts/", 0) != 0)
        return m_path + ": already there, and not a link to a virtual drive";
    if (PseudoTerminal::isServed(target))
        return m_path + ": a virtual drive that is running has this name (" + target + ")";
    return {};
}

std::string PortLink::make(const std::string &port)
{
    if (m_path.empty())
        return {};
    const std::string error = inTheWay(port);
    if (!error.empty())
        return error;
    // In one step, so that a program that looks for the name never finds it missing.
    const std::string temporary = m_path + ".new";
    unlink(temporary.c_str());
    if (symlink(port.c_str(), temporary.c_str()) != 0)
        return m_path + ": " + std::strerror(errno);
    if (std::rename(temporary.c_str(), m_path.c_str()) != 0) {
        const std::string failure = m_path + ": " + std::strerror(errno);
        unlink(temporary.c_str());
        return failure;
    }
    m_made = port;
    return {};
}

void PortLink::remove()
{
    // Another bus may have taken the name over since.
    if (!m_made.empty() && targetOf(m_path) == m_made)
        unlink(m_path.c_str());
    m_made.clear();
}

} // namespace sim
