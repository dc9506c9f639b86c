#include "busworker.h"

#include <algorithm>
#include <poll.h>
#include <pthread.h>
#include <sys/eventfd.h>
#include <sys/prctl.h>
#include <unistd.h>

namespace sim {

namespace {

using namespace std::chrono_literals;
using Nanoseconds = std::chrono::nanoseconds;

constexpr std::int64_t baudRate = 460800;
constexpr int bitsPerByte = 10;
constexpr Nanoseconds byteTime{1000000000LL * bitsPerByte / baudRate};
/// Longer than any gap within a packet, shorter than any time-out of a master.
constexpr auto packetGap = 30ms;
/// How often the drives catch up with the wall clock when the bus is idle.
constexpr auto idleStep = 5ms;
constexpr auto noiseStep = 2ms;

} // namespace

VirtualBus::Worker::Worker(BusOptions given) : options(std::move(given)), m_link(options.linkPath) {}

VirtualBus::Worker::~Worker()
{
    stop();
}

std::string VirtualBus::Worker::start()
{
    const std::lock_guard lock(mutex);
    if (m_running)
        return {};
    std::string error = checkDrives(options.drives);
    if (!error.empty())
        return error;
    drives.clear();
    for (const DriveOptions &drive : options.drives)
        drives.push_back(std::make_unique<VirtualDrive>(*findProfile(drive.profile), drive.address, drive.machine));
    if (!options.stateFile.empty())
        error = loadState(options.stateFile, drives);
    if (error.empty())
        error = plugIn();
    if (!error.empty())
        return error;
    m_savedGenerations.clear();
    for (std::size_t i = 0; i < drives.size(); ++i) {
        drives[i]->setRestartTime(options.restartTime);
        if (options.drives[i].upgradeMode)
            drives[i]->powerUpInUpgradeMode();
        m_savedGenerations.push_back(drives[i]->flashGeneration());
    }
    m_wakeEvent = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    m_stopping = false;
    m_running = true;
    m_lastAdvance = m_lastByte = Clock::now();
    m_thread = std::thread([this] { run(); });
    return {};
}

void VirtualBus::Worker::stop()
{
    {
        std::lock_guard lock(mutex);
        if (!m_running)
            return;
        m_stopping = true;
        wake();
    }
    m_thread.join();
    std::lock_guard lock(mutex);
    port.close();
    m_link.remove();
    ::close(m_wakeEvent);
    m_wakeEvent = -1;
    m_running = false;
    changed.notify_all();
}

void VirtualBus::Worker::wake()
{
    const std::uint64_t one = 1;
    [[maybe_unused]] const ssize_t written = ::write(m_wakeEvent, &one, sizeof one);
}

VirtualDrive *VirtualBus::Worker::find(int address)
{
    for (const auto &drive : drives) {
        if (drive->ownAddress() == address)
            return drive.get();
    }
    return nullptr;
}

std::string VirtualBus::Worker::plugIn()
{
    if (port.isOpen())
        return {};
    std::string error = port.open();
    if (error.empty())
        error = m_link.make(port.name());
    if (!error.empty())
        port.close();
    m_parser.reset();
    m_replies.clear();
    isNoisy = false;
    m_unplugging = false;
    if (m_running)
        wake();
    return error;
}

void VirtualBus::Worker::unplug(std::unique_lock<std::mutex> &lock)
{
    if (!m_running || !port.isOpen())
        return;
    // Only the thread itself may close what it is polling.
    m_unplugging = true;
    wake();
    changed.wait(lock, [this] { return !port.isOpen() || !m_running; });
}

void VirtualBus::Worker::run()
{
    // Replies are due to the microsecond; the system's usual slack would be as long as two bytes on the line.
    prctl(PR_SET_TIMERSLACK, 1000UL);
    if (options.goesFirst) {
        const sched_param lowest{1}; // of those that go before the ordinary ones
        pthread_setschedparam(pthread_self(), SCHED_RR, &lowest);
    }
    for (;;) {
        int descriptor = -1;
        Clock::time_point until;
        {
            std::lock_guard lock(mutex);
            if (m_stopping)
                return;
            serve();
            descriptor = port.descriptor();
            until = m_replies.nextDue(Clock::now() + (isNoisy ? noiseStep : idleStep));
        }
        waitForWork(descriptor, until);
    }
}

void VirtualBus::Worker::waitForWork(int descriptor, Clock::time_point until)
{
    pollfd descriptors[2] = {{m_wakeEvent, POLLIN, 0}, {descriptor, POLLIN, 0}};
    const Nanoseconds wait = std::max<Nanoseconds>(until - Clock::now(), 0ns);
    const timespec time{wait.count() / 1000000000, wait.count() % 1000000000};
    ppoll(descriptors, descriptor < 0 ? 1 : 2, &time, nullptr);
    std::uint64_t wakeUps = 0;
    [[maybe_unused]] const ssize_t count = ::read(m_wakeEvent, &wakeUps, sizeof wakeUps);
}

void VirtualBus::Worker::serve()
{
    advanceDrives();
    if (m_unplugging)
        pullPlug();
    if (!port.isOpen())
        return;
    const Bytes bytes = port.read();
    if (!bytes.empty())
        take(bytes);
    port.write(m_replies.takeDue(Clock::now()));
    if (isNoisy)
        makeNoise();
}

void VirtualBus::Worker::advanceDrives()
{
    const Clock::time_point now = Clock::now();
    for (const auto &drive : drives)
        drive->advance(now - m_lastAdvance);
    m_lastAdvance = now;
    timePassed.notify_all();
}

void VirtualBus::Worker::take(const Bytes &bytes)
{
    const Clock::time_point now = Clock::now();
    if (now - m_lastByte > packetGap)
        m_parser.reset();
    m_lastByte = now;
    for (const std::uint8_t byte : bytes) {
        const std::optional<Packet> request = m_parser.feed(byte);
        if (request && port.isOpen())
            handle(*request);
    }
}

void VirtualBus::Worker::handle(const Packet &request)
{
    if (options.recordRequests)
        received.push_back({request, frame(request), Clock::now()});
    const auto listener = std::find_if(drives.begin(), drives.end(),
                                       [&](const auto &drive) { return drive->address() == request.address; });
    if (listener != drives.end()) {
        const LineFault::Kind fault = damage.nextExchange();
        std::optional<Packet> answer;
        if (fault != LineFault::Deaf)
            answer = (*listener)->answer(request);
        saveIfChanged();
        if (fault == LineFault::Unplugged)
            pullPlug();
        else if (answer && fault != LineFault::Missing)
            reply(request, *answer, fault);
        if (fault == LineFault::Noise)
            isNoisy = true;
    }
    changed.notify_all();
}

void VirtualBus::Worker::reply(const Packet &request, const Packet &answer, LineFault::Kind fault)
{
    const Bytes bytes = damage.damaged(frame(answer), fault);
    Clock::time_point due = Clock::now() + options.turnAround;
    if (options.lineRate)
        due += byteTime * static_cast<std::int64_t>(frame(request).size() + bytes.size());
    if (fault == LineFault::Late)
        due += damage.lateness();
    m_replies.add(due, bytes);
}

void VirtualBus::Worker::makeNoise()
{
    const Clock::time_point now = Clock::now();
    const auto count = (now - m_lastNoise) / byteTime;
    m_lastNoise = now;
    port.write(damage.noise(static_cast<std::size_t>(std::clamp<std::int64_t>(count, 1, 1024))));
}

void VirtualBus::Worker::pullPlug()
{
    port.close();
    m_unplugging = false;
    m_replies.clear();
    isNoisy = false;
    changed.notify_all();
}

void VirtualBus::Worker::saveIfChanged()
{
    bool isChanged = false;
    for (std::size_t i = 0; i < drives.size(); ++i) {
        isChanged |= m_savedGenerations[i] != drives[i]->flashGeneration();
        m_savedGenerations[i] = drives[i]->flashGeneration();
    }
    if (isChanged && !options.stateFile.empty())
        stateError = saveState(options.stateFile, drives);
}

} // namespace sim
