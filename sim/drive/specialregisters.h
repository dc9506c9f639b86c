/// \file
/// Registers that do something when they are read or written: one table, one row a register.
#ifndef VELBRIN_SIM_SPECIALREGISTERS_H
#define VELBRIN_SIM_SPECIALREGISTERS_H

#include "virtualdrive.h"

namespace sim {

struct SpecialRegister
{
    using Context = VirtualDrive::CommandContext;

    int address;
    std::int32_t minimum, maximum;
    std::int32_t (*read)(const VirtualDrive &drive, const Context &context);
    /// False refuses the value. Null: read-only.
    bool (*write)(VirtualDrive &drive, Context &context, std::int32_t value);
    enum Presence { NormalOnly, UpgradeOnly, Always } presence = NormalOnly;

    static const SpecialRegister *find(int address, bool upgradeMode);

private:
    static const SpecialRegister table[];
};

} // namespace sim

#endif
