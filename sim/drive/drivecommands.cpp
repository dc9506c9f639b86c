// Commands, restarts and flash of the virtual drive.
#include "registers.h"
#include "virtualdrive.h"

namespace sim {

namespace {

enum Command : std::int32_t {
    SaveSettings = 1,
    RestartDrive = 2,
    StopStream = 4,
    RestartToUpgrade = 64,
    MeasureMotor = 256,
    ZeroPosition = 512,
};

constexpr std::int32_t MeasureDone = 800;
constexpr std::int32_t MeasureRefused = 801; ///< the drive is enabled

} // namespace

bool VirtualDrive::command(std::int32_t value)
{
    if (value == RestartDrive) {
        m_restartAfterAnswer = Restart::Normal;
        return true;
    }
    if (value == RestartToUpgrade) {
        // A Torva gets there only by being started there.
        if (m_profile.hasIoProcessor)
            return false;
        m_restartAfterAnswer = Restart::Upgrade;
        return true;
    }
    if (m_upgradeMode)
        return false;
    switch (value) {
    case SaveSettings:
        m_flash.settings = m_registers.settings();
        ++m_flashGeneration;
        return true;
    case StopStream:
        m_buffer.clear();
        return true;
    case MeasureMotor:
        measureMotor();
        return true;
    case ZeroPosition:
        m_axis.zero();
        return true;
    default:
        return false;
    }
}

/// The simulated motor's own values, whatever the settings said before.
void VirtualDrive::measureMotor()
{
    if (m_axis.isEnabled()) {
        m_measureResult = MeasureRefused;
        return;
    }
    m_registers.setValue(reg::MotorResistance, m_profile.winding.milliOhms);
    m_registers.setValue(reg::MotorInductance, m_profile.winding.microHenries);
    m_axis.configure(m_registers);
    m_measureResult = MeasureDone;
}

bool VirtualDrive::upgradeCommand(std::int32_t value)
{
    if (!m_bootloader.command(value))
        return false;
    if (value == Bootloader::EraseAndResetSettings)
        m_flash.settings = m_registers.factorySettings();
    if (value == Bootloader::Start)
        m_restartAfterAnswer = Restart::Started;
    if (value == Bootloader::EraseAndResetSettings || m_flash.firmwareIntact != m_bootloader.intact()) {
        m_flash.firmwareIntact = m_bootloader.intact();
        ++m_flashGeneration;
    }
    return true;
}

void VirtualDrive::restartIfAsked()
{
    const Restart restart = m_restartAfterAnswer;
    m_restartAfterAnswer = Restart::None;
    switch (restart) {
    case Restart::None:
        return;
    case Restart::Normal:
        powerUp(m_flash);
        m_silence = m_restartTime;
        return;
    case Restart::Upgrade:
        powerUpInUpgradeMode();
        m_silence = m_restartTime;
        return;
    case Restart::Started:
        powerUp(m_flash);
        m_oneTimeAddress = true;
        return;
    }
}

void VirtualDrive::powerUp(const Flash &flash)
{
    m_flash = flash;
    m_registers.apply(m_registers.factorySettings());
    m_registers.apply(m_flash.settings);
    m_addressOffset = m_registers.value(reg::AddressOffset);
    m_axis.configure(m_registers);
    m_axis.powerUp();
    m_recorder = Recorder();
    m_buffer.reset();
    m_bootloader.powerUp(m_flash.firmwareIntact);
    m_instant = CommandContext();
    m_buffered = CommandContext();
    m_errorBits = 0;
    m_measureResult = 0;
    m_ticks = 0;
    m_tickPhase = 0;
    m_silence = std::chrono::nanoseconds(0);
    m_oneTimeAddress = false;
    m_upgradeMode = !m_flash.firmwareIntact;
}

void VirtualDrive::powerUpInUpgradeMode()
{
    powerUp(m_flash);
    m_upgradeMode = true;
}

} // namespace sim
