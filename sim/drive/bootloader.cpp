#include "bootloader.h"

namespace sim {

void Bootloader::powerUp(bool intact)
{
    m_buffer.clear();
    m_erased = false;
    m_spoiled = false;
    m_intact = intact;
    m_faults = intact ? 0 : CutOff;
}

bool Bootloader::command(std::int32_t command)
{
    switch (command) {
    case Erase:
    case EraseAndResetSettings:
        erase();
        return true;
    case Program:
        program();
        return true;
    case Verify:
        if (m_version < firstToVerify)
            return false;
        verify();
        return true;
    case Start:
        // A bootloader that cannot verify starts whatever was programmed; a later one wants it verified first.
        if (m_version < firstToVerify && !m_flash.empty() && !m_spoiled)
            m_intact = true;
        return m_intact;
    case ProgramCore:
        if (!m_hasIoProcessor)
            return false;
        programCore();
        return true;
    case Protect:
        if (m_version < firstToProtect)
            return false;
        m_protected = true;
        return true;
    default:
        return false;
    }
}

void Bootloader::upload(std::int32_t word)
{
    m_buffer.push_back(static_cast<std::uint16_t>(word));
}

void Bootloader::erase()
{
    m_buffer.clear();
    m_flash.clear();
    m_faults = 0;
    m_erased = true;
    m_protected = false;
    m_spoiled = false;
    m_intact = false;
}

void Bootloader::program()
{
    // Writing over old contents leaves neither the old image nor the new one.
    if (!m_erased || m_protected) {
        m_spoiled = true;
        m_intact = false;
    }
    m_flash.insert(m_flash.end(), m_buffer.begin(), m_buffer.end());
    m_buffer.clear();
}

void Bootloader::programCore()
{
    m_core.swap(m_buffer);
    m_buffer.clear();
}

void Bootloader::verify()
{
    const bool good = !m_spoiled && !m_alwaysFails && (m_intact || (m_erased && !m_flash.empty()));
    m_faults = good ? m_faults & ~VerificationFailed : m_faults | VerificationFailed;
    m_intact = good;
}

} // namespace sim
