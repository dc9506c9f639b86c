/// \file
/// The far end of a serial line as plain bytes: a pseudo terminal, its other side linked to a port name in the home
/// folder of the tests. What the test writes here is what the bus library receives.
#ifndef VELBRIN_TESTS_RAWLINE_H
#define VELBRIN_TESTS_RAWLINE_H

#include <gtest/gtest.h>

#include <cstdint>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>

using Bytes = std::vector<std::uint8_t>;

/// The checksum bit by bit, in wire order: not the table that is under test.
inline Bytes withChecksum(Bytes packet)
{
    unsigned crc = 0;
    for (std::uint8_t byte : packet) {
        crc ^= byte;
        for (int bit = 0; bit < 8; ++bit)
            crc = (crc & 1) ? (crc >> 1) ^ 0xA001 : crc >> 1;
    }
    packet.push_back(static_cast<std::uint8_t>(crc & 0xFF));
    packet.push_back(static_cast<std::uint8_t>(crc >> 8));
    return packet;
}

class RawLine
{
public:
    explicit RawLine(const std::string &portName = "COM1")
    {
        std::filesystem::current_path(std::getenv("HOME"));
        m_master = posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
        if (m_master < 0 || grantpt(m_master) != 0 || unlockpt(m_master) != 0)
            throw std::runtime_error("no pseudo terminal");
        m_device = ptsname(m_master);
        m_link = portName;
        std::filesystem::remove(m_link);
        std::filesystem::create_symlink(m_device, m_link);
    }
    ~RawLine()
    {
        hangUp();
        std::filesystem::remove(m_link);
    }
    RawLine(const RawLine &) = delete;
    RawLine &operator=(const RawLine &) = delete;

    int master() const { return m_master; }

    void write(const Bytes &bytes)
    {
        ASSERT_EQ(::write(m_master, bytes.data(), bytes.size()), static_cast<ssize_t>(bytes.size()));
    }

    /// The next `count` bytes that the bus library sent; fewer only if they do not come within 5 s.
    Bytes read(std::size_t count)
    {
        Bytes bytes;
        pollfd request = {m_master, POLLIN, 0};
        while (bytes.size() < count && poll(&request, 1, 5000) > 0 && (request.revents & POLLIN)) {
            std::uint8_t chunk[256];
            const ssize_t got = ::read(m_master, chunk, std::min(sizeof chunk, count - bytes.size()));
            if (got <= 0)
                break;
            bytes.insert(bytes.end(), chunk, chunk + got);
        }
        return bytes;
    }

    bool isQuiet() const
    {
        pollfd request = {m_master, POLLIN, 0};
        return poll(&request, 1, 0) == 0;
    }

    /// The adapter is pulled out.
    void hangUp()
    {
        if (m_master >= 0)
            close(m_master);
        m_master = -1;
    }

private:
    int m_master = -1;
    std::string m_device;
    std::string m_link;
};

#endif
