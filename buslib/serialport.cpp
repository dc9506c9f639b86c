#include "serialport.h"

#include <cerrno>
#include <chrono>
#include <cstdio>
#include <fcntl.h>
#include <linux/serial.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/ioctl.h>
#include <sys/stat.h>
#include <sys/sysmacros.h>
#include <termios.h>
#include <unistd.h>

namespace {

std::uint16_t readTimeoutMs = 500;

struct BaudRate
{
    int rate;
    speed_t speed; // B460800 is a flag pattern in older C libraries and the plain number in newer ones
};

constexpr BaudRate baudRates[] = {
    {50, B50},         {75, B75},         {110, B110},       {134, B134},       {150, B150},         {200, B200},
    {300, B300},       {600, B600},       {1200, B1200},     {1800, B1800},     {2400, B2400},       {4800, B4800},
    {9600, B9600},     {19200, B19200},   {38400, B38400},   {57600, B57600},   {115200, B115200},   {230400, B230400},
    {460800, B460800}, {500000, B500000}, {576000, B576000}, {921600, B921600}, {1000000, B1000000},
};

// A read that a signal interrupts is no time-out and is tried again, but not for ever.
constexpr int interruptedReads = 8;

const BaudRate *findBaudRate(int rate)
{
    for (const BaudRate &entry : baudRates)
        if (entry.rate == rate)
            return &entry;
    return nullptr;
}

int failWith(const char *message, int port, int error)
{
    if (port >= 0)
        close(port);
    errno = error;
    std::perror(message);
    errno = error;
    return -1;
}

bool applySettings(int port, speed_t speed)
{
    termios settings = {};
    settings.c_iflag = IGNPAR;
    settings.c_cflag = CS8 | CREAD | CLOCAL;
    settings.c_cc[VTIME] = static_cast<cc_t>(readTimeoutMs / 100);
    settings.c_cc[VMIN] = 0;
    return cfsetspeed(&settings, speed) == 0 && tcsetattr(port, TCSANOW, &settings) == 0;
}

bool isPseudoTerminal(int port)
{
    constexpr unsigned firstPtyMajor = 136, lastPtyMajor = 143; // the kernel's device numbers of /dev/pts
    struct stat status = {};
    if (fstat(port, &status) != 0)
        return false;
    return major(status.st_rdev) >= firstPtyMajor && major(status.st_rdev) <= lastPtyMajor;
}

// Held by another program is a failure; a file system that knows no locks is not.
bool lockPort(int port)
{
    return flock(port, LOCK_EX | LOCK_NB) == 0 || errno != EWOULDBLOCK;
}

// Writes must not wait for ever, reads must wait for VTIME: so the flag is set around a write only.
class NonBlocking
{
public:
    explicit NonBlocking(int port) : m_port(port), m_flags(fcntl(port, F_GETFL))
    {
        if (m_flags >= 0)
            fcntl(m_port, F_SETFL, m_flags | O_NONBLOCK);
    }
    ~NonBlocking()
    {
        const int error = errno;
        if (m_flags >= 0)
            fcntl(m_port, F_SETFL, m_flags);
        errno = error;
    }
    NonBlocking(const NonBlocking &) = delete;
    NonBlocking &operator=(const NonBlocking &) = delete;

private:
    int m_port;
    int m_flags;
};

bool waitForRoom(int port, std::chrono::steady_clock::time_point deadline)
{
    using namespace std::chrono;
    const auto left = duration_cast<milliseconds>(deadline - steady_clock::now()).count();
    pollfd request = {port, POLLOUT, 0};
    return left > 0 && poll(&request, 1, static_cast<int>(left)) > 0;
}

} // namespace

void setReadTimeout(std::uint16_t milliseconds)
{
    readTimeoutMs = milliseconds;
}

std::uint16_t readTimeout()
{
    return readTimeoutMs;
}

int OpenComport(const char *path, int baudrate)
{
    const BaudRate *rate = findBaudRate(baudrate);
    if (!rate) {
        std::puts("invalid baudrate");
        return 1;
    }
    // Opened non-blocking, so that a port which another program left waiting for a carrier cannot hold us here; and not
    // inherited by programs we start, which would keep the lock.
    const int port = open(path, O_RDWR | O_NOCTTY | O_NONBLOCK | O_CLOEXEC);
    if (port < 0)
        return failWith("unable to open comport ", -1, errno);
    if (!lockPort(port))
        return failWith("unable to open comport ", port, EBUSY);
    fcntl(port, F_SETFL, fcntl(port, F_GETFL) & ~O_NONBLOCK);
    if (!applySettings(port, rate->speed))
        return failWith("unable to adjust portsettings ", port, errno);
    // On a pseudo terminal the mark would outlive our close, because the other end keeps the terminal alive.
    if (!isPseudoTerminal(port))
        ioctl(port, TIOCEXCL);
    tcflush(port, TCIFLUSH);
    return port;
}

int PollComport(int port, std::uint8_t *buffer, int length)
{
    ssize_t count = -1;
    for (int attempt = 0; attempt < interruptedReads; ++attempt) {
        count = read(port, buffer, static_cast<std::size_t>(length));
        if (count >= 0 || errno != EINTR)
            break;
    }
    return static_cast<int>(count);
}

int SendByte(int port, std::uint8_t byte)
{
    return SendBuf(port, &byte, 1) == 1 ? 0 : 1;
}

int SendBuf(int port, const std::uint8_t *buffer, int length)
{
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::milliseconds(writeLimitMs);
    const NonBlocking guard(port);
    int sent = 0;
    while (sent < length) {
        const ssize_t count = write(port, buffer + sent, static_cast<std::size_t>(length - sent));
        if (count > 0) {
            sent += static_cast<int>(count);
            continue;
        }
        const bool full = count == 0 || errno == EAGAIN || errno == EINTR;
        if (!full || !waitForRoom(port, deadline)) {
            tcflush(port, TCOFLUSH); // half a request must not go out in front of the next one
            return sent > 0 ? sent : -1;
        }
    }
    return sent;
}

int CloseComport(int port)
{
    // By hand: a program that is just being started by another thread still has the port, and with it would keep the
    // lock.
    flock(port, LOCK_UN);
    if (!isPseudoTerminal(port))
        ioctl(port, TIOCNXCL);
    tcflush(port, TCOFLUSH); // closing would wait up to 30 s for an adapter that no longer sends
    return close(port);
}

int IsCTSEnabled(int port)
{
    int lines = 0;
    return ioctl(port, TIOCMGET, &lines) == 0 && (lines & TIOCM_CTS) ? 1 : 0;
}

bool isPortGone(int port)
{
    pollfd request = {port, POLLIN, 0};
    return poll(&request, 1, 0) > 0 && (request.revents & (POLLHUP | POLLERR | POLLNVAL));
}

bool requestLowLatency(int port)
{
    serial_struct settings = {};
    if (ioctl(port, TIOCGSERIAL, &settings) != 0)
        return false;
    settings.flags |= ASYNC_LOW_LATENCY;
    if (ioctl(port, TIOCSSERIAL, &settings) != 0)
        return false;
    settings = {};
    return ioctl(port, TIOCGSERIAL, &settings) == 0 && (settings.flags & ASYNC_LOW_LATENCY);
}

int dropPortInput(int port, int limit)
{
    std::uint8_t chunk[1024];
    pollfd request = {port, POLLIN, 0};
    int dropped = 0;
    while (dropped < limit) {
        if (poll(&request, 1, 0) <= 0 || !(request.revents & POLLIN))
            break;
        const int count = PollComport(port, chunk, sizeof chunk);
        if (count <= 0)
            break; // a port that is gone is always "readable"
        dropped += count;
    }
    return dropped;
}
