/// \file
/// Which drives stand on a bus, and how they are written on a command line: the same everywhere.
#ifndef VELBRIN_SIM_DRIVEOPTIONS_H
#define VELBRIN_SIM_DRIVEOPTIONS_H

#include "machine.h"

#include <string>
#include <vector>

namespace sim {

struct DriveOptions
{
    std::string profile = "keta"; ///< one of driveProfiles()
    int address = 5;              ///< as set on the drive, 1 to 250
    bool upgradeMode = false;     ///< starts in firmware-upgrade mode, at address 255
    Machine machine = {};         ///< what its motor turns, and how it is wired
};

/// Reads PROFILE[:LOAD][@ADDRESS], several of them separated by commas, as in "keta:flexible=45+noise@7,torva". Those
/// without an address take the next free ones from 5 on, those without a LOAD (see parseMachine) get `load`, the plain
/// axis if that is empty. Empty on success, else what is wrong; `drives` is then unchanged.
std::string parseDrives(const std::string &text, std::vector<DriveOptions> &drives, const std::string &load = {});

/// Checks the models and addresses of a bus. Empty when they can live together.
std::string checkDrives(const std::vector<DriveOptions> &drives);

/// A whole number, decimal or with 0x. False when it is none or lies outside of these bounds.
bool parseNumber(const std::string &text, long minimum, long maximum, long &number);

} // namespace sim

#endif
