#include "streamplan.h"

#include "sessionregisters.h"

#include <algorithm>

namespace {

constexpr double lowestValue24 = -(1 << 21);
constexpr double highestValue24 = (1 << 21) - 1;

} // namespace

const std::array<QueueItem, 5> streamSetUp = {{
    {QueueItem::Address, reg::ReturnSelector},
    {QueueItem::Value24, reg::BufferFree},
    {QueueItem::Address, reg::ReturnLength},
    {QueueItem::Value24, reg::Returns14Bits},
    {QueueItem::Address, reg::AbsoluteSetpoint},
}};

int streamPeriod(double rate)
{
    return static_cast<int>(10000.0 / rate);
}

int streamThreshold(int initialFree, double lead, double rate)
{
    return std::max(streamChunkBytes, static_cast<int>(initialFree - lead * rate * streamItemBytes));
}

int streamChunkCount(int free, int threshold)
{
    return free < threshold ? 0 : (free - threshold) / streamChunkBytes + 1;
}

QueueItem streamSetpointItem(double setpoint)
{
    return {QueueItem::Value24, static_cast<int>(std::clamp(setpoint, lowestValue24, highestValue24))};
}
