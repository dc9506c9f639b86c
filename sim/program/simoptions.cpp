#include "simoptions.h"

#include "driveprofile.h"

#include <CLI/CLI.hpp>

namespace sim {

namespace {

/// The arguments as they were typed.
struct Arguments
{
    std::vector<std::string> drives, sets, faults;
    std::string load, link, state, turnAround, bootloader, firmware;
    bool lineRate = false;
    bool upgradeMode = false;
    bool help = false;
    bool version = false;
};

std::string profileHelp()
{
    std::string help = "Profiles:\n";
    for (const DriveProfile &profile : driveProfiles()) {
        const std::string name = profile.name;
        help += "  " + name + std::string(11 - name.size(), ' ') + profile.description + "\n";
    }
    return help;
}

/// Every option and its help: one more is a row here and a line in takeOver().
void addOptions(CLI::App &app, Arguments &typed)
{
    const auto value = [&](const char *name, std::string &target, const char *type, const char *help) {
        app.add_option(name, target, help)->type_name(type)->take_last();
    };
    const auto list = [&](const char *name, std::vector<std::string> &target, const char *type, const char *help) {
        app.add_option(name, target, help)->type_name(type)->option_text(type)->allow_extra_args(false);
    };
    app.set_help_flag();
    list("--drive", typed.drives, "PROFILE[:LOAD][@ADDRESS]",
         "a drive on the bus, at the next free address from 5 on if none\n"
         "is given; may be repeated. Without it there is one keta at 5");
    value("--load", typed.load, "NAME[=NUMBER][+...]",
          "what the motors turn and how they are wired, for each drive\n"
          "that names none itself: \"flexible=45+noise\". Below, the number\n"
          "in brackets stands for none given");
    value("--link", typed.link, "PATH",
          "a link to the port, removed at the end. Velbrin opens names\n"
          "that begin with \"COM\" or \"/dev/tty\", so \"--link COM1\" suits a\n"
          "program started in this folder. The link of a simulator that is\n"
          "running is not taken over");
    value("--state", typed.state, "FILE", "keep the drives' flash in this file from run to run");
    list("--set", typed.sets, "REG=VALUE[@ADDRESS]",
         "set a register at start, on one drive or on all: settings,\n"
         "identity (6010=1077) or a live value that then stays (950=3000\n"
         "is 30.00 V); may be repeated");
    app.add_flag("--line-rate", typed.lineRate, "bytes take their time, as at 460800 baud");
    value("--turn-around", typed.turnAround, "MICROSECONDS", "a pause before each reply");
    list("--fault", typed.faults, "KIND[=AT][+SKIP][xCOUNT]",
         "a bad line: after SKIP good replies, COUNT replies are hit (all\n"
         "if not given); repeated, the faults follow one another");
    app.add_flag("--upgrade-mode", typed.upgradeMode, "start in firmware-upgrade mode, at address 255");
    value("--bootloader", typed.bootloader, "VERSION", "the bootloader's version, 1260 if not given");
    value("--write-firmware", typed.firmware, "FILE",
          "write a small valid firmware file for the first drive's model,\nand end");
    app.add_flag("-h,--help", typed.help, "this text");
    app.add_flag("-v,--version", typed.version, "the program's version");
}

/// The help begins with how it is called, as that of the other programs does; then comes what it is.
class UsageFirst : public CLI::Formatter
{
public:
    std::string make_description(const CLI::App *) const override { return {}; }
    std::string make_option_name(const CLI::Option *option, bool isPositional) const override
    {
        const std::string names = CLI::Formatter::make_option_name(option, isPositional);
        const std::size_t comma = names.find(",--");
        return comma == std::string::npos ? names : names.substr(0, comma) + ", " + names.substr(comma + 1);
    }
    std::string make_usage(const CLI::App *, std::string) const override
    {
        return "Usage: velbrin-sim [OPTION...]\n"
               "\n"
               "Virtual servo drives with motors on a serial bus: a place to try Velbrin without hardware.\n"
               "Prints the name of the port to connect to, then serves it until it is interrupted (Ctrl+C).\n";
    }
};

void describe(CLI::App &app)
{
    constexpr std::size_t column = 30;
    app.formatter(std::make_shared<UsageFirst>());
    app.get_formatter()->column_width(column);
    app.footer(profileHelp() + "\nLoads:\n" + machineHelp() + "\nKinds of bad lines:\n" + lineFaultHelp());
}

/// REGISTER=VALUE[@ADDRESS]
std::string parsePreset(const std::string &text, std::vector<PresetRegister> &presets)
{
    const std::size_t equals = text.find('=');
    const std::size_t at = text.find('@');
    long reg = 0, value = 0, drive = 0;
    const bool good = equals != std::string::npos && (at == std::string::npos || at > equals) &&
                      parseNumber(text.substr(0, equals), 1, 0x3FFF, reg) &&
                      parseNumber(text.substr(equals + 1, at - equals - 1), registerMinimum, registerMaximum, value) &&
                      (at == std::string::npos || parseNumber(text.substr(at + 1), 1, 250, drive));
    if (!good)
        return "--set " + text + ": not of the form REGISTER=VALUE[@ADDRESS]";
    presets.push_back({static_cast<int>(drive), static_cast<int>(reg), static_cast<std::int32_t>(value)});
    return {};
}

/// The drives: all of them at once, so that those without an address know which ones are taken.
std::string takeDrives(const Arguments &typed, BusOptions &bus)
{
    const std::string drives = typed.drives.empty() ? DriveOptions().profile : CLI::detail::join(typed.drives, ",");
    const std::string error = parseDrives(drives, bus.drives, typed.load);
    if (!error.empty())
        return (typed.drives.empty() ? "--load: " : "--drive: ") + error;
    if (typed.upgradeMode && bus.drives.size() > 1)
        return "--upgrade-mode takes a single drive: in that mode all drives answer at address 255";
    bus.drives.front().upgradeMode = typed.upgradeMode;
    return {};
}

std::string takeNumbers(const Arguments &typed, SimOptions &options)
{
    long number = 0;
    if (!typed.turnAround.empty()) {
        if (!parseNumber(typed.turnAround, 0, 1000000, number))
            return "--turn-around " + typed.turnAround + ": must be a number of microseconds up to 1000000";
        options.bus.turnAround = std::chrono::microseconds(number);
    }
    if (!typed.bootloader.empty()) {
        if (!parseNumber(typed.bootloader, 0, 99999, number))
            return "--bootloader " + typed.bootloader + ": must be a version number such as 1260";
        options.bootloaderVersion = static_cast<int>(number);
    }
    return {};
}

std::string takeOver(const Arguments &typed, SimOptions &options)
{
    options.bus.linkPath = typed.link;
    options.bus.stateFile = typed.state;
    options.bus.lineRate = typed.lineRate;
    options.firmwareFile = typed.firmware;
    options.wantsHelp = typed.help;
    options.wantsVersion = typed.version;
    std::string error = takeNumbers(typed, options);
    for (const std::string &set : typed.sets) {
        if (error.empty())
            error = parsePreset(set, options.presets);
    }
    for (const std::string &text : typed.faults) {
        const std::string wrong = parseLineFault(text, options.faults.emplace_back());
        if (error.empty() && !wrong.empty())
            error = "--fault: " + wrong;
    }
    return error.empty() ? takeDrives(typed, options.bus) : error;
}

} // namespace

std::string parseArguments(int count, char **arguments, SimOptions &options)
{
    CLI::App app;
    Arguments typed;
    addOptions(app, typed);
    try {
        app.parse(count, arguments);
    } catch (const CLI::ParseError &error) {
        return error.what();
    }
    options = SimOptions();
    return takeOver(typed, options);
}

std::string helpText()
{
    CLI::App app;
    Arguments typed;
    addOptions(app, typed);
    describe(app);
    return app.help();
}

} // namespace sim
