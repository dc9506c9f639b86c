/// \file
/// Items of a request and the return values of a reply. The top two bits of the first byte give the length; values are
/// big-endian, two's complement in their field.
#ifndef VELBRIN_SIM_ITEMCODEC_H
#define VELBRIN_SIM_ITEMCODEC_H

#include "drivepacket.h"

namespace sim {

struct Item
{
    bool selectsAddress = false; ///< selects the register that later values are written to; otherwise a value
    std::int32_t value = 0;      ///< register number (14 bits), or a value signed in its 22 or 30 bits
};

/// The items of a payload, in order. An item cut short by the payload's end, or one byte long, is left out.
std::vector<Item> decodeItems(const Bytes &payload);

/// What a write came to. The numbers are those of one-byte return values.
enum class Outcome : std::int32_t { Done = 1, Refused = 2 };

/// Length control (register 10): how return values are packed.
enum ReturnLength : std::int32_t { Return30Bits = 0, Return22Bits = 1, Return14Bits = 2, ReturnOutcome = 3 };

/// Appends a return value; bits that do not fit are cut off.
void appendReturnValue(Bytes &reply, std::int32_t value, std::int32_t lengthControl);

} // namespace sim

#endif
