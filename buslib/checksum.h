/// \file
/// The checksum of a bus packet: CRC-16/ARC (reflected polynomial 0xA001, start 0x0000, no final XOR; check value
/// 0xBB3D over the digits 1 to 9). It covers every byte from the command id to the last payload byte.
///
/// The running register is kept **byte-swapped**: its high byte is the first checksum byte on the wire (the low byte of
/// the CRC), its low byte the second. Pure functions; any thread.
#ifndef VELBRIN_BUSLIB_CHECKSUM_H
#define VELBRIN_BUSLIB_CHECKSUM_H

#include <cstddef>
#include <cstdint>

/// The register after one more byte. Start with 0x0000.
std::uint16_t calcCRC16(std::uint8_t byte, std::uint16_t crc);

/// The same steps over a buffer, but starting from 0xFFFF (CRC-16/MODBUS, byte-swapped). Returns -1 for a length of 0.
/// Not the packet checksum: kept for tools, nothing on the bus uses it.
int calcCRC16Buf(const std::uint8_t *buffer, std::size_t length);

#endif
