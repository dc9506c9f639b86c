/// \file
/// The registers that hold plain values: identity and settings, with their limits.
#ifndef VELBRIN_SIM_REGISTERFILE_H
#define VELBRIN_SIM_REGISTERFILE_H

#include "driveprofile.h"

#include <map>

namespace sim {

/// Values of writable registers by number, as flash keeps them.
using Settings = std::map<int, std::int32_t>;

class RegisterFile
{
public:
    explicit RegisterFile(const DriveProfile &profile);

    /// Null for a register that is not in the table.
    const RegisterInfo *find(int address) const;
    /// 0 for a register that is not in the table.
    std::int32_t value(int address) const;
    /// Without any check: those are the drive's.
    void setValue(int address, std::int32_t value);

    Settings settings() const;
    Settings factorySettings() const;
    /// Takes over what exists and lies within its limits; returns how many values did not.
    int apply(const Settings &settings);

private:
    struct Entry
    {
        RegisterInfo info;
        std::int32_t value;
    };
    std::map<int, Entry> m_entries;
};

} // namespace sim

#endif
