/// \file
/// The buffer from which timed commands are executed at the drive's own pace.
#ifndef VELBRIN_SIM_COMMANDBUFFER_H
#define VELBRIN_SIM_COMMANDBUFFER_H

#include "itemcodec.h"

#include <deque>

namespace sim {

class CommandBuffer
{
public:
    static constexpr int capacity = 2048; ///< bytes
    static constexpr int itemBytes = 4;   ///< whatever its length on the line
    static constexpr std::size_t returnBytes = 120;
    static constexpr int defaultPeriod = 200; ///< 0.1 ms

    /// False when the item does not fit.
    bool store(const Item &item);
    /// Drops what is waiting.
    void clear() { m_items.clear(); }
    void reset() { *this = CommandBuffer(); }

    bool isEmpty() const { return m_items.empty(); }
    const Item &next() const { return m_items.front(); }
    Item take();
    int freeBytes() const { return capacity - itemBytes * int(m_items.size()); }

    /// Time between two setpoints, 0.1 ms.
    void setPeriod(int period) { m_period = period; }
    int period() const { return m_period; }
    /// Lets 0.1 ms units pass.
    void advance(int units);
    bool isSetpointDue() const { return m_wait <= 0; }
    /// A setpoint has been executed: the next one waits for a period.
    void setpointTaken() { m_wait += m_period; }

    /// Keeps the return value of an executed item for the next reply; what finds no room is dropped.
    void addReturn(const Bytes &value);
    Bytes takeReturns();

private:
    std::deque<Item> m_items;
    Bytes m_returns;
    int m_period = defaultPeriod;
    int m_wait = 0;
};

} // namespace sim

#endif
