/// \file
/// One virtual drive: what a servo drive makes of the packets it is sent.
///
/// No port, no thread and no clock of its own: packets and time come from the caller (VirtualBus for a live drive, a
/// test for an exact one). Not thread-safe; whoever shares it between threads holds a lock around every call.
#ifndef VELBRIN_SIM_VIRTUALDRIVE_H
#define VELBRIN_SIM_VIRTUALDRIVE_H

#include "bootloader.h"
#include "commandbuffer.h"
#include "itemcodec.h"
#include "recorder.h"
#include "registerfile.h"
#include "servoaxis.h"

#include <chrono>
#include <map>
#include <optional>

namespace sim {

/// What survives a power cycle.
struct Flash
{
    Settings settings;
    bool firmwareIntact = true; ///< false from the erase of an upgrade to its end
};

/// Bits of register 13.
enum ErrorBit : std::int32_t {
    ErrorReadOnly = 1,
    ErrorUnknownRegister = 2,
    ErrorValueNotAllowed = 4,
    ErrorAboveMaximum = 8,
    ErrorBelowMinimum = 16,
};

class VirtualDrive
{
public:
    static constexpr int upgradeAddress = 255; ///< in firmware-upgrade mode
    static constexpr int oneTimeAddress = 16;  ///< after the bootloader has started a firmware, until the next restart

    /// Powers up with factory settings; see powerUp. `address` as set on the drive, 1 to 250.
    explicit VirtualDrive(const DriveProfile &profile, int address = 5, const Machine &machine = {});

    // --- The line ---------------------------------------------------------------------------------------------

    /// The reply, or none for another address, an unknown command and while restarting.
    std::optional<Packet> answer(const Packet &request);
    /// Where it answers now.
    int address() const;
    /// Where it answers in normal mode without an address offset: names the drive, whatever it does meanwhile.
    int ownAddress() const { return m_ownAddress; }
    bool isInUpgradeMode() const { return m_upgradeMode; }

    // --- Time -------------------------------------------------------------------------------------------------

    /// Lets time pass, at most a second at once: what lies further back is forgotten.
    void advance(std::chrono::nanoseconds elapsed);
    /// Lets whole control cycles of 0.4 ms pass.
    void advanceCycles(int cycles);
    /// Silence of a restart; 1.5 s if not set.
    void setRestartTime(std::chrono::nanoseconds time) { m_restartTime = time; }

    // --- Registers as the master sees them ----------------------------------------------------------------------

    /// 0 for a register that does not exist.
    std::int32_t read(int address) const;
    /// Writes with all checks; a refusal sets its bit in register 13.
    Outcome write(int address, std::int32_t value);

    // --- Registers as whoever runs the drive sets them ----------------------------------------------------------

    /// Sets any register. Settings and identity take the value, also a read-only or impossible one; a live value stays
    /// at it until released (and the bus voltage, temperature and inputs then act on the motor); writing the fault
    /// register raises those faults. False for a register that does not exist.
    bool set(int address, std::int32_t value);
    /// Lets a live register follow the drive again.
    void release(int address) { m_held.erase(address); }
    /// Refuses the next writes of `value` to `address` (any value when empty), after letting `after` of them through.
    void refuseWrites(int address, std::optional<std::int32_t> value = std::nullopt, int after = 0);
    void acceptWrites() { m_refusals.clear(); }

    // --- Power and flash ----------------------------------------------------------------------------------------

    /// Switches on with this flash: in firmware-upgrade mode when an upgrade had been cut off.
    void powerUp(const Flash &flash);
    /// Switches on in firmware-upgrade mode, whatever the flash holds.
    void powerUpInUpgradeMode();
    const Flash &flash() const { return m_flash; }
    /// Grows whenever the flash changes.
    unsigned flashGeneration() const { return m_flashGeneration; }

    // --- Parts --------------------------------------------------------------------------------------------------

    const DriveProfile &profile() const { return m_profile; }
    ServoAxis &axis() { return m_axis; }
    const ServoAxis &axis() const { return m_axis; }
    Bootloader &bootloader() { return m_bootloader; }
    const Bootloader &bootloader() const { return m_bootloader; }
    Recorder &recorder() { return m_recorder; }
    const Recorder &recorder() const { return m_recorder; }
    CommandBuffer &commandBuffer() { return m_buffer; }
    const CommandBuffer &commandBuffer() const { return m_buffer; }

private:
    friend struct SpecialRegister;

    /// Selected register and return control: instant and buffered commands have one each.
    struct CommandContext
    {
        int selected = 0;
        std::int32_t returnSelector = 0;
        std::int32_t lengthControl = Return30Bits;
    };
    struct Refusal
    {
        int address;
        std::optional<std::int32_t> value;
        int after;
    };

    Bytes executeNow(const Bytes &payload);
    Bytes store(const Bytes &payload);
    Bytes clock() const;
    void execute(CommandContext &context, const Item &item, Bytes &returns);
    std::int32_t returnValue(const CommandContext &context) const;
    std::int32_t readIn(const CommandContext &context, int address) const;
    Outcome writeIn(CommandContext &context, int address, std::int32_t value);
    Outcome writeSetting(const RegisterInfo &info, std::int32_t value);
    const RegisterInfo *findPlain(int address) const;
    Outcome refuse(ErrorBit bit);
    bool isRefused(int address, std::int32_t value);
    bool command(std::int32_t value);
    bool upgradeCommand(std::int32_t value);
    void measureMotor();
    void restartIfAsked();
    void tick();
    void runBuffer();

    const DriveProfile m_profile;
    const int m_ownAddress;
    RegisterFile m_registers;
    ServoAxis m_axis;
    Recorder m_recorder;
    CommandBuffer m_buffer;
    Bootloader m_bootloader;
    CommandContext m_instant;
    CommandContext m_buffered;
    Flash m_flash;
    unsigned m_flashGeneration = 0;

    std::int32_t m_errorBits = 0;
    std::int32_t m_measureResult = 0;
    std::map<int, std::int32_t> m_held; ///< live registers set from outside
    std::vector<Refusal> m_refusals;

    bool m_upgradeMode = false;
    bool m_oneTimeAddress = false;
    int m_addressOffset = 0; ///< as it was at power-up: a change counts from the next restart on
    enum class Restart { None, Normal, Upgrade, Started } m_restartAfterAnswer = Restart::None;
    std::chrono::nanoseconds m_restartTime = std::chrono::milliseconds(1500);
    std::chrono::nanoseconds m_silence{0};
    std::int64_t m_tickPhase = 0; ///< base periods times 1e9
    std::int64_t m_ticks = 0;     ///< since power-up
};

} // namespace sim

#endif
