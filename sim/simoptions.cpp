#include "simoptions.h"

#include <algorithm>
#include <cerrno>
#include <cstdlib>
#include <getopt.h>

namespace sim {

namespace {

enum Option {
    Drive = 'd',
    Link = 'l',
    State = 's',
    Set = 'r',
    LineRate = 'b',
    TurnAround = 't',
    Fault = 'f',
    UpgradeMode = 'u',
    BootloaderVersion = 'v',
    WriteFirmware = 'w',
    Help = 'h'
};

const option LongOptions[] = {
    {"drive", required_argument, nullptr, Drive},
    {"link", required_argument, nullptr, Link},
    {"state", required_argument, nullptr, State},
    {"set", required_argument, nullptr, Set},
    {"line-rate", no_argument, nullptr, LineRate},
    {"turn-around", required_argument, nullptr, TurnAround},
    {"fault", required_argument, nullptr, Fault},
    {"upgrade-mode", no_argument, nullptr, UpgradeMode},
    {"bootloader", required_argument, nullptr, BootloaderVersion},
    {"write-firmware", required_argument, nullptr, WriteFirmware},
    {"help", no_argument, nullptr, Help},
    {nullptr, 0, nullptr, 0},
};

constexpr int NotGiven = 0;

/// A whole number, decimal or with 0x, within bounds.
bool parseNumber(const std::string &text, long minimum, long maximum, long &number)
{
    char *end = nullptr;
    errno = 0;
    number = std::strtol(text.c_str(), &end, text.rfind("0x", 0) == 0 ? 16 : 10);
    return errno == 0 && !text.empty() && *end == '\0' && number >= minimum && number <= maximum;
}

/// Drives without an address come behind each other from the default address on.
void placeDrives(std::vector<DriveOptions> &drives)
{
    const auto isTaken = [&](int address) {
        return std::any_of(drives.begin(), drives.end(),
                           [=](const DriveOptions &drive) { return drive.address == address; });
    };
    int address = DriveOptions().address;
    for (DriveOptions &drive : drives) {
        while (drive.address == NotGiven && isTaken(address))
            ++address;
        if (drive.address == NotGiven)
            drive.address = address;
    }
}

/// PROFILE[@ADDRESS]
std::string parseDrive(const std::string &text, std::vector<DriveOptions> &drives)
{
    DriveOptions drive;
    const std::size_t at = text.find('@');
    drive.profile = text.substr(0, at);
    long address = NotGiven;
    if (at != std::string::npos && !parseNumber(text.substr(at + 1), 1, 250, address))
        return "--drive " + text + ": the address must be a number from 1 to 250";
    drive.address = static_cast<int>(address);
    drives.push_back(drive);
    return {};
}

/// REGISTER=VALUE[@ADDRESS]
std::string parsePreset(const std::string &text, std::vector<PresetRegister> &presets)
{
    const std::size_t equals = text.find('=');
    const std::size_t at = text.find('@');
    long reg = 0, value = 0, drive = 0;
    const bool good = equals != std::string::npos && (at == std::string::npos || at > equals) &&
                      parseNumber(text.substr(0, equals), 1, 0x3FFF, reg) &&
                      parseNumber(text.substr(equals + 1, at - equals - 1), RegisterMinimum, RegisterMaximum, value) &&
                      (at == std::string::npos || parseNumber(text.substr(at + 1), 1, 250, drive));
    if (!good)
        return "--set " + text + ": not of the form REGISTER=VALUE[@ADDRESS]";
    presets.push_back({static_cast<int>(drive), static_cast<int>(reg), static_cast<std::int32_t>(value)});
    return {};
}

std::string parseOption(int letter, const std::string &value, SimOptions &options)
{
    long number = 0;
    switch (letter) {
    case Drive:
        return parseDrive(value, options.bus.drives);
    case Link:
        options.bus.linkPath = value;
        return {};
    case State:
        options.bus.stateFile = value;
        return {};
    case Set:
        return parsePreset(value, options.presets);
    case LineRate:
        options.bus.lineRate = true;
        return {};
    case TurnAround:
        if (!parseNumber(value, 0, 1000000, number))
            return "--turn-around " + value + ": must be a number of microseconds up to 1000000";
        options.bus.turnAround = std::chrono::microseconds(number);
        return {};
    case Fault: {
        LineFault fault;
        const std::string error = parseLineFault(value, fault);
        options.faults.push_back(fault);
        return error.empty() ? error : "--fault: " + error;
    }
    case BootloaderVersion:
        if (!parseNumber(value, 0, 99999, number))
            return "--bootloader " + value + ": must be a version number such as 1260";
        options.bootloaderVersion = static_cast<int>(number);
        return {};
    case WriteFirmware:
        options.firmwareFile = value;
        return {};
    case Help:
        options.wantsHelp = true;
        return {};
    default:
        return {};
    }
}

} // namespace

std::string parseArguments(int count, char **arguments, SimOptions &options)
{
    options.bus.drives.clear();
    bool upgradeMode = false;
    optind = 0; // may be called again
    for (;;) {
        // The leading colon has getopt report a missing value apart, and print nothing itself.
        const int letter = getopt_long(count, arguments, ":h", LongOptions, nullptr);
        if (letter == -1)
            break;
        if (letter == ':')
            return std::string(arguments[optind - 1]) + " needs a value";
        if (letter == '?')
            return std::string("unknown option ") + arguments[optind - 1];
        upgradeMode |= letter == UpgradeMode;
        const std::string error = parseOption(letter, optarg ? optarg : "", options);
        if (!error.empty())
            return error;
    }
    if (optind < count)
        return std::string("unexpected argument ") + arguments[optind];
    if (options.bus.drives.empty())
        options.bus.drives = BusOptions().drives;
    placeDrives(options.bus.drives);
    if (upgradeMode && options.bus.drives.size() > 1)
        return "--upgrade-mode takes a single drive: in that mode all drives answer at address 255";
    options.bus.drives.front().upgradeMode = upgradeMode;
    return checkDrives(options.bus.drives);
}

std::string helpText()
{
    std::string profiles;
    for (const DriveProfile &profile : driveProfiles())
        profiles += "      " + std::string(profile.name) + std::string(11 - std::string(profile.name).size(), ' ') +
                    profile.description + "\n";
    return "Usage: velbrin-sim [OPTION...]\n"
           "\n"
           "Virtual servo drives with motors on a serial bus: a place to try Velbrin without hardware. Prints the "
           "name\n"
           "of the port to connect to, then serves it until it is interrupted (Ctrl+C).\n"
           "\n"
           "  --drive PROFILE[@ADDRESS]   a drive on the bus, at the next free address from 5 on if none is given; may "
           "be\n"
           "                              repeated. Without it there is one keta at address 5. Profiles:\n" +
           profiles +
           "  --link PATH                 a link to the port, removed at the end. Velbrin opens names that begin with\n"
           "                              \"COM\" or \"/dev/tty\", so \"--link COM1\" suits a program started in this "
           "folder\n"
           "  --state FILE                keep the drives' flash in this file from run to run\n"
           "  --set REGISTER=VALUE[@ADDRESS]\n"
           "                              set a register at start, on one drive or on all: settings, identity "
           "(6010=1077)\n"
           "                              or a live value that then stays (950=3000 is 30.00 V); may be repeated\n"
           "  --line-rate                 bytes take their time, as at 460800 baud\n"
           "  --turn-around MICROSECONDS  a pause before each reply\n"
           "  --fault KIND[=AT][+SKIP][xCOUNT]\n"
           "                              a bad line: after SKIP good replies, COUNT replies are hit (all if not "
           "given);\n"
           "                              repeated, the faults follow one another. Kinds:\n" +
           lineFaultHelp() +
           "  --upgrade-mode              start in firmware-upgrade mode, at address 255\n"
           "  --bootloader VERSION        the bootloader's version, 1260 if not given\n"
           "  --write-firmware FILE       write a small valid firmware file for the first drive's model, and end\n"
           "  -h, --help                  this text\n";
}

} // namespace sim
