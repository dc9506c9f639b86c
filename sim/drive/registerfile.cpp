#include "registerfile.h"

namespace sim {

RegisterFile::RegisterFile(const DriveProfile &profile)
{
    for (const RegisterInfo &info : registersOf(profile))
        m_entries[info.address] = {info, info.initial};
}

const RegisterInfo *RegisterFile::find(int address) const
{
    const auto found = m_entries.find(address);
    return found == m_entries.end() ? nullptr : &found->second.info;
}

std::int32_t RegisterFile::value(int address) const
{
    const auto found = m_entries.find(address);
    return found == m_entries.end() ? 0 : found->second.value;
}

void RegisterFile::setValue(int address, std::int32_t value)
{
    const auto found = m_entries.find(address);
    if (found != m_entries.end())
        found->second.value = value;
}

Settings RegisterFile::settings() const
{
    Settings values;
    for (const auto &[address, entry] : m_entries) {
        if (entry.info.kind == RegisterInfo::Setting)
            values[address] = entry.value;
    }
    return values;
}

Settings RegisterFile::factorySettings() const
{
    Settings values;
    for (const auto &[address, entry] : m_entries) {
        if (entry.info.kind == RegisterInfo::Setting)
            values[address] = entry.info.initial;
    }
    return values;
}

int RegisterFile::apply(const Settings &settings)
{
    int refused = 0;
    for (const auto &[address, value] : settings) {
        const RegisterInfo *info = find(address);
        if (info && info->kind == RegisterInfo::Setting && value >= info->minimum && value <= info->maximum)
            setValue(address, value);
        else
            ++refused;
    }
    return refused;
}

} // namespace sim
