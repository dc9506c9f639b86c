/// \file
/// The thread behind VirtualBus: serves the port, lets the drives' time follow the wall clock, sends replies when they
/// are due.
#ifndef VELBRIN_SIM_BUSWORKER_H
#define VELBRIN_SIM_BUSWORKER_H

#include "portlink.h"
#include "pseudoterminal.h"
#include "replyqueue.h"
#include "virtualbus.h"

#include <condition_variable>
#include <mutex>
#include <thread>

namespace sim {

struct VirtualBus::Worker
{
    using Clock = std::chrono::steady_clock;

    explicit Worker(BusOptions given);
    ~Worker();

    std::string start();
    void stop();
    /// With the lock held.
    std::string plugIn();
    /// Asks the thread to let go of the port and waits until it has.
    void unplug(std::unique_lock<std::mutex> &lock);
    VirtualDrive *find(int address);
    void wake();

    BusOptions options;

    /// Guards everything below. Never held while waiting for the port.
    mutable std::mutex mutex;
    mutable std::condition_variable changed;    ///< a request arrived, or the port came or went
    mutable std::condition_variable timePassed; ///< the drives have moved on
    PseudoTerminal port;
    Drives drives;
    LineDamage damage;
    bool isNoisy = false; ///< the line babbles
    ReceivedRequests received;
    std::string stateError;

private:
    void run();
    void waitForWork(int descriptor, Clock::time_point until);
    void serve();
    void take(const Bytes &bytes);
    void handle(const Packet &request);
    void reply(const Packet &request, const Packet &answer, LineFault::Kind fault);
    void makeNoise();
    void pullPlug();
    void advanceDrives();
    void saveIfChanged();

    std::thread m_thread;
    int m_wakeEvent = -1;
    bool m_running = false;
    bool m_stopping = false;
    bool m_unplugging = false;
    RequestParser m_parser;
    Clock::time_point m_lastByte;
    Clock::time_point m_lastAdvance;
    Clock::time_point m_lastNoise;
    ReplyQueue m_replies;
    PortLink m_link;
    std::vector<unsigned> m_savedGenerations;
};

} // namespace sim

#endif
