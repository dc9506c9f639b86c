#include "drivepacket.h"

#include "checksum.h"

namespace sim {

namespace {

constexpr std::uint8_t SizeBits = 0x06;
constexpr std::uint8_t FixedTwo = 0x02;
constexpr std::uint8_t Variable = 0x04;

std::uint16_t checksum(const Bytes &bytes, std::size_t count)
{
    std::uint16_t crc = 0;
    for (std::size_t i = 0; i < count; ++i)
        crc = calcCRC16(bytes[i], crc);
    return crc;
}

} // namespace

Bytes frame(const Packet &packet)
{
    Bytes bytes{packet.id};
    if ((packet.id & SizeBits) == Variable)
        bytes.push_back(static_cast<std::uint8_t>(packet.payload.size()));
    bytes.push_back(packet.address);
    bytes.insert(bytes.end(), packet.payload.begin(), packet.payload.end());
    // The shared routine keeps its register byte-swapped, so that its high byte is the one that goes out first.
    const std::uint16_t crc = checksum(bytes, bytes.size());
    bytes.push_back(static_cast<std::uint8_t>(crc >> 8));
    bytes.push_back(static_cast<std::uint8_t>(crc & 0xFF));
    return bytes;
}

std::optional<Packet> RequestParser::feed(std::uint8_t byte)
{
    if (m_bytes.empty() && (byte & SizeBits) == SizeBits)
        return std::nullopt; // no such payload size: noise
    m_bytes.push_back(byte);
    const std::size_t length = expectedLength();
    if (length == 0 || m_bytes.size() < length)
        return std::nullopt;

    Bytes bytes;
    bytes.swap(m_bytes);
    const std::uint16_t crc = checksum(bytes, length - 2);
    if (bytes[length - 2] != crc >> 8 || bytes[length - 1] != (crc & 0xFF))
        return std::nullopt;
    const std::size_t header = (bytes[0] & SizeBits) == Variable ? 3 : 2;
    return Packet{bytes[0], bytes[header - 1], Bytes(bytes.begin() + long(header), bytes.end() - 2)};
}

void RequestParser::reset()
{
    m_bytes.clear();
}

/// Length of the packet that has begun, 0 while that is not known yet.
std::size_t RequestParser::expectedLength() const
{
    switch (m_bytes[0] & SizeBits) {
    case FixedTwo:
        return 6;
    case Variable:
        return m_bytes.size() < 2 ? 0 : 5 + std::size_t(m_bytes[1]);
    default:
        return 4;
    }
}

} // namespace sim
