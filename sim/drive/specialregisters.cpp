#include "specialregisters.h"

#include "registers.h"

namespace sim {

namespace {

using Drive = VirtualDrive;

/// Commands refuse what they do not know with "value not allowed", not with a limit.
constexpr std::int32_t any[2] = {registerMinimum, registerMaximum};

bool setSetpoint(Drive &drive, std::int32_t setpoint)
{
    drive.axis().setSetpoint(setpoint);
    return true;
}

} // namespace

const SpecialRegister SpecialRegister::table[] = {
    // Bus and return control
    {reg::NormalMode, 0, 1, [](const Drive &d, const Context &) { return d.isInUpgradeMode() ? 0 : 1; }, nullptr,
     Always},
    {reg::ReturnSelector, any[0], any[1], [](const Drive &, const Context &c) { return c.returnSelector; },
     [](Drive &, Context &c, std::int32_t v) { return c.returnSelector = v & 0xFFFF, true; }, Always},
    {reg::ReturnControl, 0, 3, [](const Drive &, const Context &c) { return c.lengthControl; },
     [](Drive &, Context &c, std::int32_t v) { return c.lengthControl = v, true; }, Always},
    {reg::ErrorBits, any[0], any[1], [](const Drive &d, const Context &) { return d.m_errorBits; },
     [](Drive &d, Context &, std::int32_t v) { return v == 0 && (d.m_errorBits = 0, true); }, Always},
    {reg::BusWatchdog, 0, registerMaximum, [](const Drive &, const Context &) { return 0; },
     [](Drive &, Context &, std::int32_t) { return true; }},
    {reg::BufferFree, 0, CommandBuffer::capacity,
     [](const Drive &d, const Context &) { return d.commandBuffer().freeBytes(); }, nullptr},
    {reg::StreamPeriod, 1, 100000, [](const Drive &d, const Context &) { return d.commandBuffer().period(); },
     [](Drive &d, Context &, std::int32_t v) { return d.commandBuffer().setPeriod(v), true; }},

    // Commands
    {reg::Faults, any[0], any[1], [](const Drive &d, const Context &) { return d.axis().faults(); },
     [](Drive &d, Context &, std::int32_t v) { return v == 0 && (d.axis().clearFaults(), true); }},
    {reg::Command, any[0], any[1], [](const Drive &, const Context &) { return 0; },
     [](Drive &d, Context &, std::int32_t v) { return d.command(v); }, Always},
    {reg::SetpointAbsolute, any[0], any[1], [](const Drive &d, const Context &) { return d.axis().setpoint(); },
     [](Drive &d, Context &, std::int32_t v) { return setSetpoint(d, v); }},
    {reg::SetpointIncremental, any[0], any[1], [](const Drive &, const Context &) { return 0; },
     [](Drive &d, Context &, std::int32_t v) {
         const std::int64_t sum = std::int64_t(d.axis().setpoint()) + v;
         return sum >= registerMinimum && sum <= registerMaximum && setSetpoint(d, std::int32_t(sum));
     }},
    {reg::SoftEnable, any[0], any[1], [](const Drive &d, const Context &) { return d.axis().softEnable() ? 1 : 0; },
     [](Drive &d, Context &, std::int32_t v) { return (v == 0 || v == 1) && (d.axis().setSoftEnable(v == 1), true); }},
    {reg::ForceEnable, any[0], any[1], [](const Drive &, const Context &) { return 0; },
     [](Drive &d, Context &, std::int32_t v) { return v == 7 && (d.axis().forceEnable(), true); }},
    {reg::HomingCommand, any[0], any[1], [](const Drive &, const Context &) { return 0; },
     [](Drive &d, Context &, std::int32_t v) {
         if (v == 0)
             d.axis().abortHoming();
         return v == 0 || (v == 1 && d.axis().startHoming());
     }},
    {reg::MeasureResult, 0, registerMaximum, [](const Drive &d, const Context &) { return d.m_measureResult; },
     nullptr},

    // Recorder
    {reg::RecorderSources, 0, registerMaximum, [](const Drive &d, const Context &) { return d.recorder().sources(); },
     [](Drive &d, Context &, std::int32_t v) { return d.recorder().setSources(v), true; }},
    {reg::RecorderDivider, 0, 65535, [](const Drive &d, const Context &) { return d.recorder().divider(); },
     [](Drive &d, Context &, std::int32_t v) { return d.recorder().setDivider(v), true; }},
    {reg::RecorderState, any[0], any[1], [](const Drive &d, const Context &) { return d.recorder().state(); },
     [](Drive &d, Context &, std::int32_t v) { return d.recorder().arm(v, d.axis().readings()); }},
    {reg::RecorderAddress, 0, Recorder::words - 1,
     [](const Drive &d, const Context &) { return d.recorder().readAddress(); },
     [](Drive &d, Context &, std::int32_t v) { return d.recorder().setReadAddress(v), true; }},
    {reg::RecorderWord, registerMinimum, registerMaximum,
     [](const Drive &d, const Context &) { return d.recorder().word(); }, nullptr},

    // Firmware-upgrade mode
    {reg::Faults, any[0], any[1], [](const Drive &d, const Context &) { return d.bootloader().faults(); },
     [](Drive &, Context &, std::int32_t v) { return v == 0; }, UpgradeOnly},
    {reg::Firmware, 0, registerMaximum,
     [](const Drive &d, const Context &) -> std::int32_t { return d.bootloader().version(); }, nullptr, UpgradeOnly},
    {reg::FirmwareCompanion, 0, registerMaximum,
     [](const Drive &d, const Context &) -> std::int32_t { return d.bootloader().version(); }, nullptr, UpgradeOnly},
    {reg::UpgradeCommand, any[0], any[1], [](const Drive &, const Context &) { return 0; },
     [](Drive &d, Context &, std::int32_t v) { return d.upgradeCommand(v); }, UpgradeOnly},
    {reg::UpgradePipe, any[0], any[1], [](const Drive &, const Context &) { return 0; },
     [](Drive &d, Context &, std::int32_t v) { return d.bootloader().upload(v), true; }, UpgradeOnly},
};

const SpecialRegister *SpecialRegister::find(int address, bool upgradeMode)
{
    for (const SpecialRegister &special : table) {
        if (special.address == address && special.presence != (upgradeMode ? NormalOnly : UpgradeOnly))
            return &special;
    }
    return nullptr;
}

} // namespace sim
