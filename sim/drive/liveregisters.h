/// \file
/// Registers that show what the drive is doing: read-only on the line, and held at a value from outside if wanted.
#ifndef VELBRIN_SIM_LIVEREGISTERS_H
#define VELBRIN_SIM_LIVEREGISTERS_H

#include "virtualdrive.h"

namespace sim {

struct LiveRegister
{
    int address;
    std::int32_t (*read)(const VirtualDrive &drive);
    /// Where a value held from outside reaches the motor; null where it is only shown.
    void (*hold)(VirtualDrive &drive, std::int32_t value) = nullptr;

    /// Null when there is no such register.
    static const LiveRegister *find(int address);
};

} // namespace sim

#endif
