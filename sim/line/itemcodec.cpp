#include "itemcodec.h"

namespace sim {

namespace {

struct Field
{
    std::size_t bytes;
    int bits;
    std::uint8_t tag; ///< the two top bits
};

/// By the top two bits of an item's first byte.
constexpr Field itemFields[4] = {{4, 30, 0x00}, {3, 22, 0x40}, {2, 14, 0x80}, {1, 6, 0xC0}};
/// By the length control, which happens to count the same way.
constexpr const Field (&returnFields)[4] = itemFields;

std::int32_t signExtend(std::uint32_t value, int bits)
{
    const std::uint32_t sign = 1u << (bits - 1);
    value &= (sign << 1) - 1;
    return static_cast<std::int32_t>((value ^ sign) - sign);
}

} // namespace

std::vector<Item> decodeItems(const Bytes &payload)
{
    std::vector<Item> items;
    for (std::size_t at = 0; at < payload.size();) {
        const Field &field = itemFields[payload[at] >> 6];
        if (at + field.bytes > payload.size())
            break;
        std::uint32_t raw = 0;
        for (std::size_t i = 0; i < field.bytes; ++i)
            raw = raw << 8 | payload[at + i];
        if (field.bytes == 2)
            items.push_back({true, static_cast<std::int32_t>(raw & 0x3FFF)});
        else if (field.bytes > 2)
            items.push_back({false, signExtend(raw, field.bits)});
        at += field.bytes;
    }
    return items;
}

void appendReturnValue(Bytes &reply, std::int32_t value, std::int32_t lengthControl)
{
    const Field &field = returnFields[lengthControl & 3];
    const std::uint32_t raw = static_cast<std::uint32_t>(value);
    for (std::size_t i = field.bytes; i-- > 0;)
        reply.push_back(static_cast<std::uint8_t>(raw >> 8 * i));
    std::uint8_t &first = reply[reply.size() - field.bytes];
    first = static_cast<std::uint8_t>((first & 0x3F) | field.tag);
}

} // namespace sim
