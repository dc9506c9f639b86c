// velbrin-sim: the virtual bus as a program of its own.
#include "firmwarewriter.h"
#include "simoptions.h"

#include <csignal>
#include <cstdio>

namespace {

constexpr int exitFailed = 1;
constexpr int wrongUsage = 2;
constexpr long stateCheckNanoseconds = 500000000;

int failed(const std::string &error, int status)
{
    std::fprintf(stderr, "velbrin-sim: %s\n", error.c_str());
    return status;
}

int writeFirmware(const sim::SimOptions &options)
{
    const sim::DriveProfile &profile = *sim::findProfile(options.bus.drives.front().profile);
    const std::string error = sim::writeFile(options.firmwareFile, sim::sampleFirmware(profile));
    return error.empty() ? 0 : failed(error, exitFailed);
}

/// Empty on success, else which register does not exist.
std::string preset(sim::VirtualBus &bus, const sim::SimOptions &options)
{
    for (const sim::DriveOptions &drive : options.bus.drives) {
        bus.withDrive(drive.address, [&](sim::VirtualDrive &virtualDrive) {
            virtualDrive.bootloader().setVersion(options.bootloaderVersion);
        });
    }
    for (const sim::PresetRegister &setting : options.presets) {
        bool known = false;
        for (const sim::DriveOptions &drive : options.bus.drives) {
            if (setting.drive == 0 || setting.drive == drive.address)
                known |= bus.set(drive.address, setting.reg, setting.value);
        }
        if (!known)
            return "--set: no drive here has a register " + std::to_string(setting.reg) + " to set";
    }
    return {};
}

/// Until a signal asks for the end. Tells at once when the state file could not be written.
void serve(const sim::VirtualBus &bus, const sigset_t &signals)
{
    std::string told;
    const timespec pause{0, stateCheckNanoseconds};
    while (sigtimedwait(&signals, nullptr, &pause) < 0) {
        const std::string error = bus.stateError();
        if (error != told && !error.empty())
            failed(error, exitFailed);
        told = error;
    }
}

} // namespace

int main(int count, char **arguments)
{
    sim::SimOptions options;
    const std::string wrong = sim::parseArguments(count, arguments, options);
    if (!wrong.empty())
        return failed(wrong + "\nTry velbrin-sim --help", wrongUsage);
    if (options.wantsHelp) {
        std::fputs(sim::helpText().c_str(), stdout);
        return 0;
    }
    if (options.wantsVersion) {
        std::puts("velbrin-sim " VELBRIN_SIM_VERSION);
        return 0;
    }
    if (!options.firmwareFile.empty())
        return writeFirmware(options);

    // Blocked before the bus thread starts, so that it is this thread that they reach.
    sigset_t signals;
    sigemptyset(&signals);
    for (const int signal : {SIGINT, SIGTERM, SIGHUP})
        sigaddset(&signals, signal);
    pthread_sigmask(SIG_BLOCK, &signals, nullptr);
    std::signal(SIGPIPE, SIG_IGN);

    sim::VirtualBus bus(options.bus);
    std::string error = bus.start();
    if (error.empty())
        error = preset(bus, options);
    if (!error.empty())
        return failed(error, exitFailed);
    bus.setFaults(options.faults);
    std::printf("%s\n", bus.portName().c_str());
    std::fflush(stdout);
    serve(bus, signals);
    return 0;
}
