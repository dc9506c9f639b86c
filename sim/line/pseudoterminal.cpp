#include "pseudoterminal.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <termios.h>
#include <unistd.h>

namespace sim {

namespace {

std::string failure(const char *what)
{
    return std::string(what) + ": " + std::strerror(errno);
}

/// The mark by which a served port is known: a record lock, which ends with whoever holds it and has nothing to do with
/// the lock of the whole port that a program on the other end takes.
struct flock servedMark()
{
    struct flock mark = {};
    mark.l_type = F_WRLCK;
    mark.l_whence = SEEK_SET;
    mark.l_start = 0;
    mark.l_len = 1;
    return mark;
}

} // namespace

std::string PseudoTerminal::open()
{
    close();
    m_master = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC | O_NONBLOCK);
    if (m_master < 0)
        return failure("no pseudo terminal");
    char name[128];
    if (grantpt(m_master) != 0 || unlockpt(m_master) != 0 || ptsname_r(m_master, name, sizeof name) != 0) {
        const std::string error = failure("pseudo terminal refused");
        close();
        return error;
    }
    m_slave = ::open(name, O_RDWR | O_NOCTTY | O_CLOEXEC);
    if (m_slave < 0) {
        const std::string error = failure(name);
        close();
        return error;
    }
    // Without this the terminal would echo what the drives say back to them until a program sets it up.
    termios settings{};
    tcgetattr(m_slave, &settings);
    cfmakeraw(&settings);
    tcsetattr(m_slave, TCSANOW, &settings);
    struct flock mark = servedMark();
    fcntl(m_slave, F_OFD_SETLK, &mark);
    m_name = name;
    return {};
}

bool PseudoTerminal::isServed(const std::string &name)
{
    const int descriptor = ::open(name.c_str(), O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (descriptor < 0)
        return false;
    struct flock mark = servedMark();
    const bool isMarked = fcntl(descriptor, F_OFD_GETLK, &mark) == 0 && mark.l_type != F_UNLCK;
    ::close(descriptor);
    return isMarked;
}

void PseudoTerminal::close()
{
    for (int *descriptor : {&m_slave, &m_master}) {
        if (*descriptor >= 0)
            ::close(*descriptor);
        *descriptor = -1;
    }
}

Bytes PseudoTerminal::read()
{
    Bytes bytes(4096);
    const ssize_t count = ::read(m_master, bytes.data(), bytes.size());
    bytes.resize(count > 0 ? static_cast<std::size_t>(count) : 0);
    return bytes;
}

void PseudoTerminal::write(const Bytes &bytes)
{
    const std::uint8_t *from = bytes.data();
    std::size_t left = bytes.size();
    while (left > 0) {
        const ssize_t count = ::write(m_master, from, left);
        if (count <= 0)
            return;
        from += count;
        left -= static_cast<std::size_t>(count);
    }
}

} // namespace sim
