#include "portlink.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>
#include <functional>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
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

/// Whether no other virtual drive that runs has this name. The kernel forgets the claim with the process, so that
/// nothing is left behind by one that was killed; the terminal's own number would not tell, as it soon belongs to
/// another.
bool PortLink::claimName()
{
    if (m_claim >= 0)
        return true;
    std::error_code ignored;
    const auto folder =
        std::filesystem::weakly_canonical(std::filesystem::absolute(m_path, ignored).parent_path(), ignored);
    const std::string full = (folder / std::filesystem::path(m_path).filename()).string();
    sockaddr_un name{};
    name.sun_family = AF_UNIX;
    // The first byte stays 0: a name without a file.
    std::snprintf(name.sun_path + 1, sizeof name.sun_path - 1, "velbrin-sim-link-%016zx",
                  std::hash<std::string>()(full));
    const int claim = socket(AF_UNIX, SOCK_DGRAM | SOCK_CLOEXEC, 0);
    if (claim >= 0 && bind(claim, reinterpret_cast<const sockaddr *>(&name), sizeof name) == 0) {
        m_claim = claim;
        return true;
    }
    const bool inUse = errno == EADDRINUSE;
    if (claim >= 0)
        close(claim);
    return !inUse;
}

/// Empty when the name may be taken over: nothing there, our own link, or the left-over of a run that was killed.
std::string PortLink::inTheWay(const std::string &port)
{
    const std::string target = targetOf(m_path);
    if (!exists(m_path) || target == port || (!m_made.empty() && target == m_made))
        return {};
    if (target.rfind("/dev/pts/", 0) != 0)
        return m_path + ": already there, and not a link to a virtual drive";
    if (!claimName())
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
    claimName();
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
    if (m_claim >= 0)
        close(m_claim);
    m_claim = -1;
}

} // namespace sim
