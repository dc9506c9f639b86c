#include "registerfile.h"

namespace sim {

RegisterFile::RegisterFile(const DriveProfile &profile)
{
    for (const RegisterSpec &spec : registersOf(profile))
        m_entries[spec.address] = {spec, spec.initial};
}

const RegisterSpec *RegisterFile::find(int address) const
{
    const auto found = m_entries.find(address);
    return found == m_entries.end() ? nullptr : &found->second.spec;
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
        if (entry.spec.kind == RegisterSpec::Setting)
            values[address] = entry.value;
    }
    return values;
}

Settings RegisterFile::factorySettings() const
{
    Settings values;
    for (const auto &[address, entry] : m_entries) {
        if (entry.spec.kind == RegisterSpec::Setting)
            values[address] = entry.spec.initial;
    }
    return values;
}

int RegisterFile::apply(const Settings &settings)
{
    int refused = 0;
    for (const auto &[address, value] : settings) {
        const RegisterSpec *spec = find(address);
        if (spec && spec->kind == RegisterSpec::Setting && value >= spec->minimum && value <= spec->maximum)
            setValue(address, value);
        else
            ++refused;
    }
    return refused;
}

} // namespace sim
