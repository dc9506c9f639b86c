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
    // A link is ours or a left-over of a run that was killed; anything else belongs to somebody.
    if (lstat(m_path.c_str(), &info) == 0 && !S_ISLNK(info.st_mode))
        return m_path + ": already there, and not a link";
    unlink(m_path.c_str());
    if (symlink(port.c_str(), m_path.c_str()) != 0)
        return m_path + ": " + std::strerror(errno);
    m_made = true;
    return {};
}

void PortLink::remove()
{
    if (m_made)
        unlink(m_path.c_str());
    m_made = false;
}

} // namespace sim
