#include "virtualbus.h"

#include "busworker.h"

namespace sim {

VirtualBus::VirtualBus(BusOptions options) : m_worker(std::make_unique<Worker>(std::move(options))) {}

VirtualBus::~VirtualBus() = default;

std::string VirtualBus::start()
{
    return m_worker->start();
}

void VirtualBus::stop()
{
    m_worker->stop();
}

std::string VirtualBus::portName() const
{
    std::lock_guard lock(m_worker->mutex);
    return m_worker->port.name();
}

void VirtualBus::setFaults(const std::vector<LineFault> &faults)
{
    std::lock_guard lock(m_worker->mutex);
    m_worker->damage.setFaults(faults);
    m_worker->isNoisy = false;
}

void VirtualBus::unplug()
{
    std::unique_lock lock(m_worker->mutex);
    m_worker->unplug(lock);
}

std::string VirtualBus::plugIn()
{
    std::lock_guard lock(m_worker->mutex);
    return m_worker->plugIn();
}

bool VirtualBus::isPluggedIn() const
{
    std::lock_guard lock(m_worker->mutex);
    return m_worker->port.isOpen();
}

void VirtualBus::setLineRate(bool paced)
{
    std::lock_guard lock(m_worker->mutex);
    m_worker->options.lineRate = paced;
}

void VirtualBus::setTurnAround(std::chrono::microseconds delay)
{
    std::lock_guard lock(m_worker->mutex);
    m_worker->options.turnAround = delay;
}

ReceivedRequests VirtualBus::received() const
{
    std::lock_guard lock(m_worker->mutex);
    return m_worker->received;
}

void VirtualBus::clearReceived()
{
    std::lock_guard lock(m_worker->mutex);
    m_worker->received.clear();
}

bool VirtualBus::waitForReceived(const std::function<bool(const ReceivedRequests &)> &condition,
                                 std::chrono::milliseconds limit) const
{
    std::unique_lock lock(m_worker->mutex);
    return m_worker->changed.wait_for(lock, limit, [&] { return condition(m_worker->received); });
}

bool VirtualBus::withDrive(int address, const std::function<void(VirtualDrive &)> &action)
{
    std::lock_guard lock(m_worker->mutex);
    VirtualDrive *drive = m_worker->find(address);
    if (drive)
        action(*drive);
    return drive != nullptr;
}

std::int32_t VirtualBus::read(int address, int reg)
{
    std::int32_t value = 0;
    withDrive(address, [&](VirtualDrive &drive) { value = drive.read(reg); });
    return value;
}

bool VirtualBus::set(int address, int reg, std::int32_t value)
{
    bool done = false;
    withDrive(address, [&](VirtualDrive &drive) { done = drive.set(reg, value); });
    return done;
}

bool VirtualBus::waitForRegister(int address, int reg, const std::function<bool(std::int32_t)> &condition,
                                 std::chrono::milliseconds limit)
{
    std::unique_lock lock(m_worker->mutex);
    return m_worker->timePassed.wait_for(lock, limit, [&] {
        VirtualDrive *drive = m_worker->find(address);
        return drive && condition(drive->read(reg));
    });
}

bool VirtualBus::waitForRegister(int address, int reg, std::int32_t value, std::chrono::milliseconds limit)
{
    return waitForRegister(
        address, reg, [value](std::int32_t now) { return now == value; }, limit);
}

void VirtualBus::powerCycle()
{
    std::lock_guard lock(m_worker->mutex);
    for (const auto &drive : m_worker->drives)
        drive->powerUp(drive->flash());
}

std::string VirtualBus::stateError() const
{
    std::lock_guard lock(m_worker->mutex);
    return m_worker->stateError;
}

} // namespace sim
