/// \file
/// The PC's end of the line for tests: bytes out, bytes in, nothing understood.
#ifndef VELBRIN_TESTS_TESTLINE_H
#define VELBRIN_TESTS_TESTLINE_H

#include "drivepacket.h"

#include <algorithm>
#include <chrono>
#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

class TestLine
{
public:
    explicit TestLine(const char *port) : m_port(::open(port, O_RDWR | O_NOCTTY)) {}
    ~TestLine() { ::close(m_port); }
    TestLine(const TestLine &) = delete;
    TestLine &operator=(const TestLine &) = delete;

    bool isOpen() const { return m_port >= 0; }
    bool send(const sim::Bytes &bytes) { return ::write(m_port, bytes.data(), bytes.size()) == ssize_t(bytes.size()); }

    /// Waits for `count` bytes; gives what arrived within the limit.
    sim::Bytes receive(std::size_t count, std::chrono::milliseconds limit = std::chrono::seconds(10))
    {
        const auto end = std::chrono::steady_clock::now() + limit;
        sim::Bytes bytes;
        while (bytes.size() < count) {
            const auto left =
                std::chrono::duration_cast<std::chrono::milliseconds>(end - std::chrono::steady_clock::now());
            pollfd descriptor{m_port, POLLIN, 0};
            if (left.count() < 0 || ::poll(&descriptor, 1, int(left.count())) <= 0)
                break;
            std::uint8_t buffer[512];
            const ssize_t got = ::read(m_port, buffer, std::min(sizeof buffer, count - bytes.size()));
            if (got <= 0)
                break;
            bytes.insert(bytes.end(), buffer, buffer + got);
        }
        return bytes;
    }

    sim::Bytes exchange(const sim::Bytes &request, std::size_t replyBytes,
                        std::chrono::milliseconds limit = std::chrono::seconds(10))
    {
        send(request);
        return receive(replyBytes, limit);
    }

private:
    int m_port;
};

#endif
