#include "checksum.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

namespace {

std::uint16_t registerOver(const std::vector<std::uint8_t> &bytes)
{
    std::uint16_t crc = 0;
    for (std::uint8_t byte : bytes)
        crc = calcCRC16(byte, crc);
    return crc;
}

const std::vector<std::uint8_t> digits = {'1', '2', '3', '4', '5', '6', '7', '8', '9'};

} // namespace

TEST(Checksum, HasItsCheckValuesAndIsZeroOverItsOwnChecksum)
{
    EXPECT_EQ(registerOver(digits), 0x3DBB); // CRC-16/ARC, 0xBB3D: the low byte goes out first
    std::vector<std::uint8_t> bytes = digits;
    bytes.push_back(0x3D);
    bytes.push_back(0xBB);
    EXPECT_EQ(registerOver(bytes), 0);
    EXPECT_EQ(calcCRC16Buf(digits.data(), digits.size()), 0x374B); // CRC-16/MODBUS check value 0x4B37
    EXPECT_EQ(calcCRC16Buf(digits.data(), 0), -1);
}
