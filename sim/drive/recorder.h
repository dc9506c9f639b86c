/// \file
/// The drive's recorder ("scope"): samples up to sixteen signals into 2000 words after a trigger.
#ifndef VELBRIN_SIM_RECORDER_H
#define VELBRIN_SIM_RECORDER_H

#include "servoaxis.h"

#include <array>

namespace sim {

class Recorder
{
public:
    static constexpr int words = 2000;

    enum Trigger { Off = 0, SetpointRises = 1, SetpointChanges = 2, Fault = 3, AtOnce = 4 };

    void setSources(std::int32_t mask) { m_nextSources = mask; }
    std::int32_t sources() const { return m_nextSources; }
    /// One sample every `divider` + 1 base periods.
    void setDivider(std::int32_t divider) { m_nextDivider = divider; }
    std::int32_t divider() const { return m_nextDivider; }

    /// Waits for the trigger with the sources and divider of this moment; Off gives up. False for another code, or when
    /// no source is selected that exists. `now` is what later signals are compared with.
    bool arm(std::int32_t trigger, const AxisSignals &now);
    /// The trigger code while armed or recording, 0 when idle or done.
    std::int32_t state() const { return m_state; }

    /// One base period has passed.
    void tick(const AxisSignals &readings);

    void setReadAddress(int address) { m_readAddress = address; }
    int readAddress() const { return m_readAddress; }
    /// The word at the read address: signed, but for the sources that are unsigned.
    std::int32_t word() const { return m_words[static_cast<std::size_t>(m_readAddress)]; }

private:
    bool triggered(const AxisSignals &readings) const;
    void store(const AxisSignals &readings);

    std::int32_t m_nextSources = 0;
    std::int32_t m_nextDivider = 0;
    std::int32_t m_sources = 0;
    std::int32_t m_divider = 0;
    std::int32_t m_state = Off;
    bool m_recording = false;
    std::int32_t m_lastSetpoint = 0;
    std::int32_t m_lastFaults = 0;
    int m_periodsToSample = 0;
    int m_stored = 0;
    int m_readAddress = 0;
    std::array<std::int32_t, words> m_words{};
};

} // namespace sim

#endif
