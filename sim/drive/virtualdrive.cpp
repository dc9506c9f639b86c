#include "virtualdrive.h"

#include "registers.h"

#include <algorithm>

namespace sim {

namespace {

constexpr std::int64_t nanosecondsPerSecond = 1000000000;
constexpr int mostAtOnce = 1; ///< seconds that a drive catches up with in one go
constexpr int clockRate = 10000;
constexpr int clockUnitsPerCycle = clockRate / cycleRate;

} // namespace

VirtualDrive::VirtualDrive(const DriveProfile &profile, int address, const Machine &machine)
    : m_profile(profile), m_ownAddress(address), m_registers(profile), m_axis(profile, m_registers, machine),
      m_bootloader(profile.hasIoProcessor)
{
    powerUp({m_registers.factorySettings(), true});
}

int VirtualDrive::address() const
{
    if (m_upgradeMode)
        return upgradeAddress;
    if (m_oneTimeAddress)
        return oneTimeAddress;
    return m_ownAddress + m_addressOffset;
}

std::optional<Packet> VirtualDrive::answer(const Packet &request)
{
    if (m_silence.count() > 0 || request.address != address())
        return std::nullopt;
    Packet reply{0, request.address, {}};
    switch (request.id) {
    case InstantCommand:
        reply.id = InstantReply;
        reply.payload = executeNow(request.payload);
        break;
    case BufferedCommand:
        reply.id = BufferedReply;
        reply.payload = store(request.payload);
        break;
    case GetClock:
        reply.id = ClockReply;
        reply.payload = clock();
        break;
    default:
        return std::nullopt;
    }
    restartIfAsked();
    return reply;
}

Bytes VirtualDrive::executeNow(const Bytes &payload)
{
    Bytes returns;
    for (const Item &item : decodeItems(payload))
        execute(m_instant, item, returns);
    return returns;
}

Bytes VirtualDrive::store(const Bytes &payload)
{
    for (const Item &item : decodeItems(payload)) {
        if (!m_buffer.store(item))
            refuse(ErrorValueNotAllowed);
    }
    return m_buffer.takeReturns();
}

/// 16 bits of 0.1 ms since power-up, low byte first.
Bytes VirtualDrive::clock() const
{
    const std::int64_t units = m_ticks * clockRate / m_profile.recorderRate;
    return {static_cast<std::uint8_t>(units), static_cast<std::uint8_t>(units >> 8)};
}

void VirtualDrive::execute(CommandContext &context, const Item &item, Bytes &returns)
{
    Outcome outcome = Outcome::Done;
    if (item.selectsAddress)
        context.selected = item.value;
    else
        outcome = writeIn(context, context.selected, item.value);
    if (context.lengthControl == ReturnOutcome)
        appendReturnValue(returns, std::int32_t(outcome), ReturnOutcome);
    else
        appendReturnValue(returns, returnValue(context), context.lengthControl);
}

void VirtualDrive::advance(std::chrono::nanoseconds elapsed)
{
    const std::chrono::nanoseconds bounded =
        std::min<std::chrono::nanoseconds>(elapsed, std::chrono::seconds(mostAtOnce));
    m_tickPhase += bounded.count() * m_profile.recorderRate;
    while (m_tickPhase >= nanosecondsPerSecond) {
        m_tickPhase -= nanosecondsPerSecond;
        tick();
    }
}

void VirtualDrive::advanceCycles(int cycles)
{
    for (int i = 0; i < cycles * m_axis.ticksPerCycle(); ++i)
        tick();
}

void VirtualDrive::tick()
{
    if (m_silence.count() > 0)
        m_silence -= std::chrono::nanoseconds(nanosecondsPerSecond / m_profile.recorderRate);
    if (m_upgradeMode)
        return;
    if (m_ticks++ % m_axis.ticksPerCycle() == 0)
        runBuffer();
    m_axis.tick();
    m_recorder.tick(m_axis.readings());
}

/// One control cycle's worth of the command buffer.
void VirtualDrive::runBuffer()
{
    m_buffer.advance(clockUnitsPerCycle);
    while (!m_buffer.isEmpty()) {
        const bool isSetpoint = !m_buffer.next().selectsAddress && (m_buffered.selected == reg::SetpointAbsolute ||
                                                                    m_buffered.selected == reg::SetpointIncremental);
        if (isSetpoint && !m_buffer.isSetpointDue())
            break;
        const Item item = m_buffer.take();
        if (isSetpoint)
            m_buffer.setpointTaken();
        Bytes returned;
        execute(m_buffered, item, returned);
        m_buffer.addReturn(returned);
    }
    restartIfAsked();
}

} // namespace sim
