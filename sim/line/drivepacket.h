/// \file
/// The drive's side of the packet layer: requests taken from a stream of bytes, replies framed.
///
/// Deliberately not shared with the master's bus library: a mistake on one side of the line must not be repeated on
/// the other. Only the checksum routine is common to both.
#ifndef VELBRIN_SIM_DRIVEPACKET_H
#define VELBRIN_SIM_DRIVEPACKET_H

#include <cstdint>
#include <optional>
#include <vector>

namespace sim {

using Bytes = std::vector<std::uint8_t>;

/// Command ids: bits 1 and 2 tell how the payload's size is given (0 none, 2 two bytes, 4 a size byte follows).
constexpr std::uint8_t InstantCommand = 36;
constexpr std::uint8_t InstantReply = 37;
constexpr std::uint8_t BufferedCommand = 52;
constexpr std::uint8_t BufferedReply = 53;
constexpr std::uint8_t GetClock = 80;
constexpr std::uint8_t ClockReply = 83;

struct Packet
{
    std::uint8_t id = 0;
    std::uint8_t address = 0; ///< of the drive, in both directions
    Bytes payload;
};

/// The packet as bytes on the line: id, size where the id asks for one, address, payload, CRC-16/ARC low byte first.
Bytes frame(const Packet &packet);

/// Reassembles requests from the line, byte by byte. What cannot be a packet, or fails its checksum, is dropped
/// without a word, as on a bus where every drive hears everything.
class RequestParser
{
public:
    /// Takes one byte; gives the packet that it completes.
    std::optional<Packet> feed(std::uint8_t byte);
    /// The line was quiet for longer than any gap within a packet: forgets what was begun.
    void reset();

private:
    std::size_t expectedLength() const;

    Bytes m_bytes;
};

} // namespace sim

#endif
