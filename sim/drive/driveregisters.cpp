// Registers of the virtual drive: what the master reads and writes, and what is set from outside.
#include "liveregisters.h"
#include "registers.h"
#include "specialregisters.h"

namespace sim {

namespace {

constexpr std::int32_t MinimumFlag = 0x4000;
constexpr std::int32_t MaximumFlag = 0x8000;
constexpr std::int32_t NumberMask = 0x3FFF;

/// Identity stays readable in firmware-upgrade mode.
constexpr int fixedInUpgradeMode[] = {reg::ProtocolVersion, reg::ProtocolCompanion, reg::SerialNumber, reg::UniqueId,
                                      reg::DeviceType};

bool isInUpgradeTable(int address)
{
    for (int fixed : fixedInUpgradeMode) {
        if (fixed == address)
            return true;
    }
    return false;
}

/// A change of these while the motor runs needs a restart before it may run again.
constexpr int needRestart[] = {reg::FeedbackDevice, reg::VelocityFeedbackDevice, reg::MotorType, reg::PolePairs};

} // namespace

const RegisterInfo *VirtualDrive::findPlain(int address) const
{
    return m_upgradeMode && !isInUpgradeTable(address) ? nullptr : m_registers.find(address);
}

std::int32_t VirtualDrive::returnValue(const CommandContext &context) const
{
    const int address = context.returnSelector & NumberMask;
    if (!(context.returnSelector & (MinimumFlag | MaximumFlag)))
        return readIn(context, address);
    const bool wantsMinimum = context.returnSelector & MinimumFlag;
    if (const SpecialRegister *special = SpecialRegister::find(address, m_upgradeMode))
        return wantsMinimum ? special->minimum : special->maximum;
    if (const RegisterInfo *plain = findPlain(address))
        return wantsMinimum ? plain->minimum : plain->maximum;
    if (!m_upgradeMode && LiveRegister::find(address))
        return wantsMinimum ? 0 : registerMaximum;
    return 0;
}

std::int32_t VirtualDrive::readIn(const CommandContext &context, int address) const
{
    if (const SpecialRegister *special = SpecialRegister::find(address, m_upgradeMode))
        return special->read(*this, context);
    if (findPlain(address))
        return m_registers.value(address);
    if (m_upgradeMode)
        return 0;
    if (const auto held = m_held.find(address); held != m_held.end())
        return held->second;
    if (const LiveRegister *live = LiveRegister::find(address))
        return live->read(*this);
    return 0;
}

Outcome VirtualDrive::writeIn(CommandContext &context, int address, std::int32_t value)
{
    if (isRefused(address, value))
        return refuse(ErrorValueNotAllowed);
    if (const SpecialRegister *special = SpecialRegister::find(address, m_upgradeMode)) {
        if (!special->write)
            return refuse(ErrorReadOnly);
        if (value > special->maximum)
            return refuse(ErrorAboveMaximum);
        if (value < special->minimum)
            return refuse(ErrorBelowMinimum);
        return special->write(*this, context, value) ? Outcome::Done : refuse(ErrorValueNotAllowed);
    }
    if (const RegisterInfo *plain = findPlain(address))
        return writeSetting(*plain, value);
    if (!m_upgradeMode && LiveRegister::find(address))
        return refuse(ErrorReadOnly);
    return refuse(ErrorUnknownRegister);
}

Outcome VirtualDrive::writeSetting(const RegisterInfo &info, std::int32_t value)
{
    if (info.kind == RegisterInfo::Fixed)
        return refuse(ErrorReadOnly);
    if (value > info.maximum)
        return refuse(ErrorAboveMaximum);
    if (value < info.minimum)
        return refuse(ErrorBelowMinimum);
    const bool changed = value != m_registers.value(info.address);
    m_registers.setValue(info.address, value);
    m_axis.configure(m_registers);
    for (int address : needRestart) {
        if (changed && address == info.address && m_axis.isEnabled())
            m_axis.stopPermanently();
    }
    return Outcome::Done;
}

Outcome VirtualDrive::refuse(ErrorBit bit)
{
    m_errorBits |= bit;
    return Outcome::Refused;
}

std::int32_t VirtualDrive::read(int address) const
{
    return readIn(m_instant, address);
}

Outcome VirtualDrive::write(int address, std::int32_t value)
{
    const Outcome outcome = writeIn(m_instant, address, value);
    restartIfAsked();
    return outcome;
}

bool VirtualDrive::set(int address, std::int32_t value)
{
    if (m_upgradeMode && (address == reg::Firmware || address == reg::FirmwareCompanion)) {
        m_bootloader.setVersion(value);
    } else if (m_registers.find(address)) {
        m_registers.setValue(address, value);
        m_axis.configure(m_registers);
    } else if (address == reg::Faults) {
        m_axis.raiseFaults(value);
    } else if (const LiveRegister *live = LiveRegister::find(address)) {
        m_held[address] = value;
        if (live->hold)
            live->hold(*this, value);
    } else {
        return SpecialRegister::find(address, m_upgradeMode) && write(address, value) == Outcome::Done;
    }
    return true;
}

void VirtualDrive::refuseWrites(int address, std::optional<std::int32_t> value, int after)
{
    m_refusals.push_back({address, value, after});
}

bool VirtualDrive::isRefused(int address, std::int32_t value)
{
    for (Refusal &refusal : m_refusals) {
        if (refusal.address == address && refusal.value.value_or(value) == value && refusal.after-- <= 0)
            return true;
    }
    return false;
}

} // namespace sim
