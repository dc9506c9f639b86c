/// \file
/// A bus of virtual drives on a port of its own, live: this is what a program without hardware connects to.
///
/// start() opens a pseudo terminal and serves it on a thread of its own until stop(). Everything public may be called
/// from any thread; calls that look into a drive or at the line wait for at most one packet's work. Nothing throws:
/// what can fail returns an error text, empty on success.
#ifndef VELBRIN_SIM_VIRTUALBUS_H
#define VELBRIN_SIM_VIRTUALBUS_H

#include "driveoptions.h"
#include "linefault.h"
#include "statefile.h"

#include <chrono>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace sim {

struct BusOptions
{
    std::vector<DriveOptions> drives = {DriveOptions()};
    std::string linkPath = {};                   ///< symbolic link to the port, removed by stop(); none when empty
    std::string stateFile = {};                  ///< keeps the drives' flash across runs; none when empty
    bool lineRate = false;                       ///< bytes take their time at 460800 baud
    std::chrono::microseconds turnAround{0};     ///< between the end of a request and the begin of its reply
    std::chrono::milliseconds restartTime{1500}; ///< silence of a restarting drive
    bool goesFirst = false;                      ///< before whatever else the PC does, where that is permitted
    bool recordRequests = false;                 ///< keep what arrives for received(); grows without bound
};

/// One request as it arrived, whoever it was for.
struct ReceivedRequest
{
    Packet packet;
    Bytes bytes; ///< as on the line
    std::chrono::steady_clock::time_point time;
};
using ReceivedRequests = std::vector<ReceivedRequest>;

class VirtualBus
{
public:
    explicit VirtualBus(BusOptions options = {});
    ~VirtualBus(); ///< stops
    VirtualBus(const VirtualBus &) = delete;
    VirtualBus &operator=(const VirtualBus &) = delete;

    /// Unknown model, an address out of range or taken twice, a damaged state file, no pseudo terminal, a link path
    /// that is taken by something else than a link, or by a virtual bus that is running.
    std::string start();
    void stop();
    /// The port to open, e.g. "/dev/pts/3". Changes when it is plugged in anew.
    std::string portName() const;

    // --- The line -----------------------------------------------------------------------------------------------

    /// Replaces all faults before. Several happen one after the other, see LineDamage.
    void setFault(const LineFault &fault) { setFaults({fault}); }
    void setFaults(const std::vector<LineFault> &faults);
    void clearFaults() { setFaults({}); }
    /// Pulls the adapter out: the port is gone when this returns.
    void unplug();
    /// A new port, linked again under the same path; the drives have lived on.
    std::string plugIn();
    bool isPluggedIn() const;
    /// Paces replies at 460800 baud from now on.
    void setLineRate(bool paced);
    void setTurnAround(std::chrono::microseconds delay);

    // --- What arrived (with recordRequests) ---------------------------------------------------------------------

    ReceivedRequests received() const;
    void clearReceived();
    /// Waits until `condition` holds for what was received, looking after each request. False when the limit passed.
    bool waitForReceived(const std::function<bool(const ReceivedRequests &)> &condition,
                         std::chrono::milliseconds limit = std::chrono::seconds(20)) const;

    // --- The drives: named by the address set on them -------------------------------------------------------------

    /// Runs `action` on a drive while the bus stands still. False when there is no such drive.
    bool withDrive(int address, const std::function<void(VirtualDrive &)> &action);
    /// Register as the master would read it; 0 when there is no such drive or register.
    std::int32_t read(int address, int reg);
    /// Sets any register, see VirtualDrive::set.
    bool set(int address, int reg, std::int32_t value);
    /// Waits until a register has a value, or `condition` holds for it, or the limit has passed (false then).
    bool waitForRegister(int address, int reg, const std::function<bool(std::int32_t)> &condition,
                         std::chrono::milliseconds limit = std::chrono::seconds(20));
    bool waitForRegister(int address, int reg, std::int32_t value,
                         std::chrono::milliseconds limit = std::chrono::seconds(20));
    /// Every drive off and on again, as the flash has them.
    void powerCycle();
    /// What went wrong with the state file while running; empty when nothing did.
    std::string stateError() const;

private:
    struct Worker;
    std::unique_ptr<Worker> m_worker;
};

} // namespace sim

#endif
