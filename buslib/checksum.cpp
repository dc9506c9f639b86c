#include "checksum.h"

namespace {

constexpr std::uint16_t reflectedPolynomial = 0xA001;

// The classic pair of byte tables: `high` begins 0x00, 0xC1, 0x81, 0x40 and `low` 0x00, 0xC0, 0xC1, 0x01.
struct CrcTables
{
    std::uint8_t high[256] = {};
    std::uint8_t low[256] = {};

    constexpr CrcTables()
    {
        for (unsigned index = 0; index < 256; ++index) {
            unsigned remainder = index;
            for (int bit = 0; bit < 8; ++bit)
                remainder = (remainder & 1) ? (remainder >> 1) ^ reflectedPolynomial : remainder >> 1;
            high[index] = static_cast<std::uint8_t>(remainder & 0xFF);
            low[index] = static_cast<std::uint8_t>(remainder >> 8);
        }
    }
};

constexpr CrcTables tables;
static_assert(tables.high[1] == 0xC1 && tables.low[1] == 0xC0 && tables.high[3] == 0x40 && tables.low[3] == 0x01,
              "these are the tables of the reflected polynomial");

} // namespace

std::uint16_t calcCRC16(std::uint8_t byte, std::uint16_t crc)
{
    const unsigned index = (crc >> 8) ^ byte;
    return static_cast<std::uint16_t>((((crc & 0xFF) ^ tables.high[index]) << 8) | tables.low[index]);
}

int calcCRC16Buf(const std::uint8_t *buffer, std::size_t length)
{
    if (length == 0)
        return -1;
    std::uint16_t crc = 0xFFFF;
    for (std::size_t i = 0; i < length; ++i)
        crc = calcCRC16(buffer[i], crc);
    return crc;
}
