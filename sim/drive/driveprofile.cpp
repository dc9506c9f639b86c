#include "driveprofile.h"

#include "registers.h"

#include <algorithm>

namespace sim {

namespace {

constexpr Winding lowVoltage{0.10, 150, 500, 4800};
constexpr Winding highVoltage{0.40, 2400, 8000, 32000};

constexpr int torvaRate = 17500;
constexpr int ketaRate = 20000;
static_assert(torvaRate % cycleRate == 0 && ketaRate % cycleRate == 0, "whole base periods in a control cycle");

constexpr std::int32_t protocolVersionNow = 25;
constexpr std::int32_t serial = 240117;
constexpr std::int32_t revision = 0x1A4C7E2;
constexpr std::int32_t unique = 0x1C35A90B;

/// Settings of every model: register, value at the factory, minimum, maximum.
const RegisterInfo commonSettings[] = {
    {565, 2500, 1, 1000000},                     // FBR
    {493, 1, 0, 6},                              // FBD
    {494, 0, 0, 4},                              // FB2D
    {490, 6, 0, 9},                              // TBW
    {202, 360, 0, 32767},                        // KVP
    {200, 360, 0, 32767},                        // KVI
    {201, 120, 0, 32767},                        // KPP
    {220, 0, 0, 32767},                          // VFF
    {221, 0, 0, 32767},                          // AFF
    {222, 1024, 0, 1024},                        // PFF
    {559, 1, 1, 3},                              // CM
    {558, 3, 0, 4},                              // MT
    {230, 0, 0, 32767},                          // AD
    {567, 1, 0, 65535},                          // FLAGS
    {411, 32000, 0, 35000},                      // MMC
    {410, 13000, 0, 35000},                      // MCC
    {421, 800, 10, 960},                         // FOC
    {569, 5800, 1000, 7500},                     // FOV
    {570, 3600, 1000, 7000},                     // FUV
    {555, 2000, 1, 1000000},                     // FPT
    {556, 120, 1, 32767},                        // FVT
    {496, 240, 1, 32767},                        // FEV
    {568, 0, 0, 1000000},                        // FMO
    {498, 0, 0, 2},                              // LSF
    {491, 100000, 1, 500000000},                 // AXS
    {492, 3, 0, 4},                              // AXT
    {495, 0, 0, 25000},                          // FFT
    {562, 0, 0, 4},                              // CRI
    {561, 200, 1, 32767},                        // DIV
    {560, 200, 1, 32767},                        // MUL
    {800, 320, 1, 32767},                        // CAL
    {801, 0, 0, 32767},                          // CSD
    {802, 40000, 1, 1000000},                    // CVL
    {557, 8000, 1, 1000000},                     // CRV
    {405, 150, 1, 100000},                       // MR
    {406, 500, 1, 500000},                       // ML
    {430, 600, 1, 10000},                        // MTC
    {566, 4, 0, 100},                            // MPC
    {572, 3000, 1, 60000},                       // MMS
    {563, 0, -16384, 16384},                     // CAO
    {806, 0, 0, 255},                            // HOMING
    {804, 2000, -1000000, 1000000},              // HMV
    {803, 80, 1, 32767},                         // HMA
    {808, 1000, 0, 1000000},                     // HMH
    {415, 6500, 0, 35000},                       // HMT
    {835, 0, -500000000, 500000000},             // HHL
    {836, 0, -500000000, 500000000},             // HLL
    {823, 0, -500000000, 500000000},             // HMF
    {8120, 0, 0, 32767},                         // overrideAddr1
    {8121, 0, 0, 32767},                         // overrideAddr2
    {8122, 0, 0, 32767},                         // overrideAddr3
    {8125, 0, registerMinimum, registerMaximum}, // overrideVal1
    {8126, 0, registerMinimum, registerMaximum}, // overrideVal2
    {8127, 0, registerMinimum, registerMaximum}, // overrideVal3
    {911, 0, 0, 10000},                          // BED
    {910, 0, 0, 10000},                          // BER
    {912, 0, 0, 10000},                          // BDD
};

const RegisterInfo ketaSettings[] = {
    {573, 0, 0, 1}, // CEI
    {14, 0, 0, 15}, // ZBO
};

/// Torque ripple compensation.
const RegisterInfo ketaProSettings[] = {
    {424, 0, 0, 25},       // TRF1
    {426, 0, 0, 25},       // TRF2
    {425, 0, -5000, 5000}, // TRA1
    {427, 0, -1024, 1024}, // TRA2
};

/// The smaller current range of the high-voltage stage, and the motor wound for it.
const RegisterInfo torvaDifferences[] = {
    {reg::PeakCurrent, 8000, 0, 20000},
    {reg::ContinuousCurrent, 3250, 0, 20000},
    {reg::HomingCurrent, 1625, 0, 20000},
    {reg::OverCurrentLimit, 200, 10, 960},
    {reg::OverVoltageLimit, 40000, 3000, 43000},
    {reg::UnderVoltageLimit, 20000, 3000, 40000},
    {reg::MotorResistance, 2400, 1, 100000},
    {reg::MotorInductance, 8000, 1, 500000},
    {reg::VelocityP, 90, 0, 32767},
    {reg::VelocityI, 90, 0, 32767},
};

const RegisterInfo highCurrentDifferences[] = {
    {reg::PeakCurrent, 32000, 0, 50000},
    {reg::ContinuousCurrent, 13000, 0, 50000},
    {reg::HomingCurrent, 6500, 0, 50000},
};

enum Family { Torva = 4, Keta = 11 };
constexpr std::int32_t TorvaType = 4000;
constexpr std::int32_t KetaType = 11000;
constexpr std::int32_t KetaProType = 11001;
constexpr std::int32_t KetaHighCurrentType = 11200;

template <std::size_t Count> void append(std::vector<RegisterInfo> &list, const RegisterInfo (&more)[Count])
{
    list.insert(list.end(), std::begin(more), std::end(more));
}

template <std::size_t Count> void replace(std::vector<RegisterInfo> &list, const RegisterInfo (&changed)[Count])
{
    for (const RegisterInfo &info : changed) {
        const auto same = [&](const RegisterInfo &known) { return known.address == info.address; };
        *std::find_if(list.begin(), list.end(), same) = info;
    }
}

void appendIdentity(std::vector<RegisterInfo> &list, const DriveProfile &profile)
{
    const auto fixed = [&](int address, std::int32_t value) {
        list.push_back({address, value, 0, registerMaximum, RegisterInfo::Fixed});
    };
    fixed(reg::ProtocolVersion, protocolVersionNow);
    fixed(reg::ProtocolCompanion, protocolVersionNow);
    fixed(reg::SerialNumber, serial);
    fixed(reg::Firmware, profile.firmware);
    fixed(reg::FirmwareCompanion, profile.firmware);
    fixed(reg::CoreFirmware, profile.firmware);
    fixed(reg::CoreCompanion, profile.firmware);
    fixed(reg::DeviceType, profile.deviceType);
    list.push_back({reg::ControlRate, cycleRate, cycleRate, cycleRate, RegisterInfo::Fixed});
    if (profile.deviceType / 1000 == Keta) {
        fixed(reg::UniqueId, unique);
        fixed(reg::BuildRevision, revision);
    }
}

} // namespace

const std::vector<DriveProfile> &driveProfiles()
{
    static const std::vector<DriveProfile> profiles = {
        {"keta", "Keta, 48 V, one processor", KetaType, 1078, false, ketaRate, lowVoltage},
        {"keta-pro", "Keta Pro, 48 V, with torque ripple compensation", KetaProType, 1078, false, ketaRate, lowVoltage},
        {"keta-hc", "Keta for high currents, up to 50 A", KetaHighCurrentType, 1078, false, ketaRate, lowVoltage},
        {"torva", "Torva, 320 V, two processors", TorvaType, 1090, true, torvaRate, highVoltage},
    };
    return profiles;
}

const DriveProfile *findProfile(const std::string &name)
{
    for (const DriveProfile &profile : driveProfiles()) {
        if (name == profile.name)
            return &profile;
    }
    return nullptr;
}

std::vector<RegisterInfo> registersOf(const DriveProfile &profile)
{
    std::vector<RegisterInfo> list;
    appendIdentity(list, profile);
    append(list, commonSettings);
    if (profile.deviceType / 1000 == Keta)
        append(list, ketaSettings);
    if (profile.deviceType == KetaProType)
        append(list, ketaProSettings);
    if (profile.deviceType == KetaHighCurrentType)
        replace(list, highCurrentDifferences);
    if (profile.deviceType / 1000 == Torva)
        replace(list, torvaDifferences);
    return list;
}

} // namespace sim
