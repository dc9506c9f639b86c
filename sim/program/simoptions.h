/// \file
/// The command line of velbrin-sim.
#ifndef VELBRIN_SIM_SIMOPTIONS_H
#define VELBRIN_SIM_SIMOPTIONS_H

#include "virtualbus.h"

namespace sim {

/// A register set at start, as with VirtualDrive::set.
struct PresetRegister
{
    int drive = 0; ///< address as set on the drive; 0 means all
    int reg = 0;
    std::int32_t value = 0;
};

struct SimOptions
{
    BusOptions bus;
    std::vector<PresetRegister> presets;
    std::vector<LineFault> faults;
    int bootloaderVersion = Bootloader::defaultVersion;
    std::string firmwareFile; ///< write one and end, when not empty
    bool wantsHelp = false;
    bool wantsVersion = false;
};

/// Reads the arguments. Empty on success, else what is wrong with them.
std::string parseArguments(int count, char **arguments, SimOptions &options);

std::string helpText();

} // namespace sim

#endif
