#include "specialregisters.h"

#include "registers.h"

namespace sim {

namespace {

using Drive = VirtualDrive;

/// Commands refuse what they do not know with "value not allowed", not with a limit.
constexpr std::int32_t Any[2] = {RegisterMinimum, RegisterMaximum};

bool setSetpoint(Drive &drive, std::int32_t setpoint)
{
    drive.axis().setSetpoint(setpoint);
    return true;
}

} // namespace

const SpecialRegister SpecialRegister::Table[] = {
    // Bus and return control
    {reg::NormalMode, 0, 1, [](const Drive &d, const Context &) { return d.isInUpgradeMode() ? 0 : 1; }, nullptr,
     Always},
    {reg::ReturnSelector, Any[0], Any[1], [](const Drive &, const Context &c) { return c.returnSelector; },
     [](Drive &, Context &c, std::int32_t v) { return c.returnSelector = v & 0xFFFF, true; }, Always},
    {reg::ReturnControl, 0, 3, [](const Drive &, const Context &c) { return c.lengthControl; },
     [](Drive &, Context &c, std::int32_t v) { return c.lengthControl = v, true; }, Always},
    {reg::ErrorBits, Any[0], Any[1], [](const Drive &d, const Context &) { return d.m_errorBits; },
     [](Drive &d, Context &, std::int32_t v) { return v == 0 && (d.m_errorBits = 0, true); }, Always},
    {reg::BusWatchdog, 0, RegisterMaximum, [](const Drive &, const Context &) { return 0; },
     [](Drive &, Context &, std::int32_t) { return true; }},
    {reg::BufferFree, 0, CommandBuffer::Capacity,
     [](const Drive &d, const Context &) { return d.commandBuffer().freeBytes(); }, nullptr},
    {reg::StreamPeriod, 1, 100000, [](const Drive &d, const Context &) { return d.commandBuffer().period(); },
     [](Drive &d, Context &, std::int32_t v) { return d.commandBuffer().setPeriod(v), true; }},

    // Commands
    {reg::Faults, Any[0], Any[1], [](const Drive &d, const Context &) { return d.axis().faults(); },
     [](Drive &d, Context &, std::int32_t v) { return v == 0 && (d.axis().clearFaults(), true); }},
    {reg::Command, Any[0], Any[1], [](const Drive &, const Context &) { return 0; },
     [](Drive &d, Context &, std::int32_t v) { return d.command(v); }, Always},
    {reg::SetpointAbsolute, Any[0], Any[1], [](const Drive &d, const Context &) { return d.axis().setpoint(); },
     [](Drive &d, Context &, std::int32_t v) { return setSetpoint(d, v); }},
    {reg::SetpointIncremental, Any[0], Any[1], [](const Drive &, const Context &) { return 0; },
     [](Drive &d, Context &, std::int32_t v) {
         const std::int64_t sum = std::int64_t(d.axis().setpoint()) + v;
         return sum >= RegisterMinimum && sum <= RegisterMaximum && setSetpoint(d, std::int32_t(sum));
     }},
    {reg::SoftEnable, Any[0], Any[1], [](const Drive &d, const Context &) { return d.axis().softEnable() ? 1 : 0; },
     [](Drive &d, Context &, std::int32_t v) { return (v == 0 || v == 1) && (d.axis().setSoftEnable(v == 1), true); }},
    {reg::ForceEnable, Any[0], Any[1], [](const Drive &, const Context &) { return 0; },
     [](Drive &d, Context &, std::int32_t v) { return v == 7 && (d.axis().forceEnable(), true); }},
    {reg::HomingCommand, Any[0], Any[1], [](const Drive &, const Context &) { return 0; },
     [](Drive &d, Context &, std::int32_t v) {
         if (v == 0)
             d.axis().abortHoming();
         return v == 0 || (v == 1 && d.axis().startHoming());
     }},
    {reg::MeasureResult, 0, RegisterMaximum, [](const Drive &d, const Context &) { return d.m_measureResult; },
     nullptr},

    // Recorder
    {reg::RecorderSources, 0, RegisterMaximum, [](const Drive &d, const Context &) { return d.recorder().sources(); },
     [](Drive &d, Context &, std::int32_t v) { return d.recorder().setSources(v), true; }},
    {reg::RecorderDivider, 0, 65535, [](const Drive &d, const Context &) { return d.recorder().divider(); },
     [](Drive &d, Context &, std::int32_t v) { return d.recorder().setDivider(v), true; }},
    {reg::RecorderState, Any[0], Any[1], [](const Drive &d, const Context &) { return d.recorder().state(); },
     [](Drive &d, Context &, std::int32_t v) { return d.recorder().arm(v, d.axis().readings()); }},
    {reg::RecorderAddress, 0, Recorder::Words - 1,
     [](const Drive &d, const Context &) { return d.recorder().readAddress(); },
     [](Drive &d, Context &, std::int32_t v) { return d.recorder().setReadAddress(v), true; }},
    {reg::RecorderWord, RegisterMinimum, RegisterMaximum,
     [](const Drive &d, const Context &) { return d.recorder().word(); }, nullptr},

    // Firmware-upgrade mode
    {reg::Faults, Any[0], Any[1], [](const Drive &d, const Context &) { return d.bootloader().faults(); },
     [](Drive &, Context &, std::int32_t v) { return v == 0; }, UpgradeOnly},
    {reg::Firmware, 0, RegisterMaximum,
     [](const Drive &d, const Context &) -> std::int32_t { return d.bootloader().version(); }, nullptr, UpgradeOnly},
    {reg::FirmwareCompanion, 0, RegisterMaximum,
     [](const Drive &d, const Context &) -> std::int32_t { return d.bootloader().version(); }, nullptr, UpgradeOnly},
    {reg::UpgradeCommand, Any[0], Any[1], [](const Drive &, const Context &) { return 0; },
     [](Drive &d, Context &, std::int32_t v) { return d.upgradeCommand(v); }, UpgradeOnly},
    {reg::UpgradePipe, Any[0], Any[1], [](const Drive &, const Context &) { return 0; },
     [](Drive &d, Context &, std::int32_t v) { return d.bootloader().upload(v), true; }, UpgradeOnly},
};

const SpecialRegister *SpecialRegister::find(int address, bool upgradeMode)
{
    for (const SpecialRegister &special : Table) {
        if (special.address == address && special.presence != (upgradeMode ? NormalOnly : UpgradeOnly))
            return &special;
    }
    return nullptr;
}

} // namespace sim
