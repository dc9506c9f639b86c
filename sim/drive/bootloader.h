/// \file
/// Firmware-upgrade mode: the flash that is erased, filled word by word, verified and protected.
#ifndef VELBRIN_SIM_BOOTLOADER_H
#define VELBRIN_SIM_BOOTLOADER_H

#include <cstdint>
#include <vector>

namespace sim {

class Bootloader
{
public:
    enum Command {
        Erase = 1,
        Program = 2, ///< the words uploaded since the last one go to the I/O-side (or only) flash
        Verify = 3,
        Start = 4,
        ProgramCore = 5, ///< the words uploaded since the last one go to the core; two processors only
        Protect = 7,     ///< until the next erase
        EraseAndResetSettings = 11,
    };

    static constexpr int defaultVersion = 1260;
    static constexpr int firstToVerify = 1210;
    static constexpr int firstToProtect = 1260;

    static constexpr std::int32_t VerificationFailed = 0x80;
    static constexpr std::int32_t CutOff = 0x120; ///< an earlier upgrade was not finished

    explicit Bootloader(bool hasIoProcessor) : m_hasIoProcessor(hasIoProcessor) {}

    int version() const { return m_version; }
    /// Below firstToVerify the verify command is refused, below firstToProtect the protect command.
    void setVersion(int version) { m_version = version; }

    /// Power-up: `intact` tells whether the flash holds a whole firmware.
    void powerUp(bool intact);

    /// False when this drive, or this state, has no such command. Start is refused while there is nothing to start.
    bool command(std::int32_t command);
    /// One word of an image, to the upload buffer.
    void upload(std::int32_t word);

    std::int32_t faults() const { return m_faults; }
    /// Whether the flash holds a firmware that can be started.
    bool intact() const { return m_intact; }

    /// What has been programmed since the last erase, for comparison with what was sent.
    const std::vector<std::uint16_t> &programmedWords() const { return m_flash; }
    const std::vector<std::uint16_t> &coreWords() const { return m_core; }

    /// Makes every verification fail, as a drive with a worn flash does.
    void setVerificationFails(bool fails) { m_alwaysFails = fails; }

private:
    void erase();
    void program();
    void programCore();
    void verify();

    bool m_hasIoProcessor;
    int m_version = defaultVersion;
    std::vector<std::uint16_t> m_buffer; ///< uploaded, not programmed yet
    std::vector<std::uint16_t> m_flash;
    std::vector<std::uint16_t> m_core;
    std::int32_t m_faults = 0;
    bool m_intact = true;
    bool m_erased = false;
    bool m_protected = true; ///< what left the factory is protected
    bool m_spoiled = false;  ///< programmed without an erase or onto a protected flash
    bool m_alwaysFails = false;
};

} // namespace sim

#endif
