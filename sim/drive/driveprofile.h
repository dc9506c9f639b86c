/// \file
/// The models that the virtual drive can be: identity, hardware and the registers that hold settings.
#ifndef VELBRIN_SIM_DRIVEPROFILE_H
#define VELBRIN_SIM_DRIVEPROFILE_H

#include <cstdint>
#include <string>
#include <vector>

namespace sim {

/// Largest and smallest value of a register.
constexpr std::int32_t registerMaximum = 536870911;
constexpr std::int32_t registerMinimum = -536870912;

/// How the motor is wound for the model's bus voltage. Both windings give the same motion.
struct Winding
{
    double torquePerAmpere;     ///< Nm/A, peak of sine
    std::int32_t milliOhms;     ///< between two wires
    std::int32_t microHenries;  ///< between two wires
    std::int32_t busCentivolts; ///< nominal supply, in 0.01 V
};

struct DriveProfile
{
    const char *name;        ///< as on the command line
    const char *description; ///< for --help
    std::int32_t deviceType; ///< register 6020
    std::int32_t firmware;   ///< registers 6010, 6011, 6014 and 6015
    bool hasIoProcessor;     ///< two processors, two firmware images
    int recorderRate;        ///< base rate of the recorder, Hz; a whole multiple of the control cycles
    Winding winding;
};

/// Control cycles per second, on every model.
constexpr int cycleRate = 2500;

/// One register that has a plain value.
struct RegisterInfo
{
    enum Kind {
        Setting, ///< writable; saved to flash
        Fixed,   ///< identity: read-only on the line
    };
    int address;
    std::int32_t initial, minimum, maximum;
    Kind kind = Setting;
};

/// All models, the default one first.
const std::vector<DriveProfile> &driveProfiles();
/// Null when there is no such model.
const DriveProfile *findProfile(const std::string &name);

/// Identity and settings of a model, with its own values and limits; what the model lacks is left out.
std::vector<RegisterInfo> registersOf(const DriveProfile &profile);

} // namespace sim

#endif
