#include "checksum.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <vector>

TEST(Checksum, HasItsCheckValuesAndIsZeroOverItsOwnChecksum)
{
    const std::vector<std::uint8_t> digits = {'1', '2', '3', '4', '5', '6', '7', '8', '9'};
    std::uint16_t crc = 0;
    for (const std::uint8_t byte : digits)
        crc = calcCRC16(byte, crc);
    EXPECT_EQ(crc, 0x3DBB); // CRC-16/ARC, 0xBB3D: the low byte goes out first
    EXPECT_EQ(calcCRC16(0xBB, calcCRC16(0x3D, crc)), 0);
    EXPECT_EQ(calcCRC16Buf(digits.data(), digits.size()), 0x374B); // CRC-16/MODBUS check value 0x4B37
    EXPECT_EQ(calcCRC16Buf(digits.data(), 0), -1);
}
