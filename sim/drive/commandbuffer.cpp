#include "commandbuffer.h"

#include <utility>

namespace sim {

bool CommandBuffer::store(const Item &item)
{
    if (freeBytes() < itemBytes)
        return false;
    m_items.push_back(item);
    return true;
}

Item CommandBuffer::take()
{
    const Item item = m_items.front();
    m_items.pop_front();
    return item;
}

void CommandBuffer::advance(int units)
{
    // A remainder is carried over while setpoints keep coming, so that their mean rate is exact; a pause is not.
    m_wait = m_wait > 0 ? m_wait - units : 0;
}

void CommandBuffer::addReturn(const Bytes &value)
{
    if (m_returns.size() + value.size() <= returnBytes)
        m_returns.insert(m_returns.end(), value.begin(), value.end());
}

Bytes CommandBuffer::takeReturns()
{
    return std::exchange(m_returns, {});
}

} // namespace sim
