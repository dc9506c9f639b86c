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
    m_name = name;
    return {};
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
