#include "portlink.h"

#include <cerrno>
#include <cstring>
#include <sys/stat.h>
#include <unistd.h>

namespace sim {

std::string PortLink::make(const std::string &port)
{
    if (m_path.empty())
        return {};
    struct stat info
    {
    };
    // A link to a pseudo terminal is a left-over of a run that was killed; anything else belongs to somebody.
    char target[256];
    const ssize_t length = readlink(m_path.c_str(), target, sizeof target);
    const bool leftOver =
        length > 0 && std::string(target, static_cast<std::size_t>(length)).rfind("/dev/pts/", 0) == 0;
    if (lstat(m_path.c_str(), &info) == 0 && !leftOver)
        return m_path + ": already there, and not a link to a virtual drive";
    unlink(m_path.c_str());
    if (symlink(port.c_str(), m_path.c_str()) != 0)
        return m_path + ": " + std::strerror(errno);
    m_made = port;
    return {};
}

void PortLink::remove()
{
    if (m_made.empty())
        return;
    // Another bus may have taken the name over since.
    char target[256];
    const ssize_t length = readlink(m_path.c_str(), target, sizeof target);
    if (length > 0 && m_made == std::string(target, static_cast<std::size_t>(length)))
        unlink(m_path.c_str());
    m_made.clear();
}

} // namespace sim
