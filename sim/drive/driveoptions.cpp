#include "driveoptions.h"

#include "driveprofile.h"

#include <algorithm>
#include <cctype>
#include <cerrno>
#include <cstdlib>
#include <set>
#include <sstream>

namespace sim {

namespace {

constexpr int notGiven = 0;
constexpr int lowestAddress = 1;
constexpr int highestAddress = 250; ///< above are the addresses of drives in firmware-upgrade mode

std::string parseDrive(const std::string &text, const std::string &defaultLoad, DriveOptions &drive)
{
    const std::size_t at = text.find('@');
    const std::string named = text.substr(0, at);
    const std::size_t colon = named.find(':');
    drive.profile = named.substr(0, colon);
    long address = notGiven;
    if (at != std::string::npos && !parseNumber(text.substr(at + 1), lowestAddress, highestAddress, address))
        return "\"" + text + "\": the address must be a number from 1 to 250";
    drive.address = static_cast<int>(address);
    if (colon == std::string::npos && defaultLoad.empty())
        return {};
    return parseMachine(colon == std::string::npos ? defaultLoad : named.substr(colon + 1), drive.machine);
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
        while (drive.address == notGiven && isTaken(address))
            ++address;
        if (drive.address == notGiven)
            drive.address = address;
    }
}

} // namespace

bool parseNumber(const std::string &text, long minimum, long maximum, long &number)
{
    if (text.empty() || std::isspace(static_cast<unsigned char>(text.front())))
        return false;
    char *end = nullptr;
    errno = 0;
    number = std::strtol(text.c_str(), &end, text.rfind("0x", 0) == 0 ? 16 : 10);
    return errno == 0 && *end == '\0' && number >= minimum && number <= maximum;
}

std::string parseDrives(const std::string &text, std::vector<DriveOptions> &drives, const std::string &load)
{
    std::vector<DriveOptions> parsed;
    std::istringstream list(text + ",");
    for (std::string one; std::getline(list, one, ',');) {
        const std::string error = parseDrive(one, load, parsed.emplace_back());
        if (!error.empty())
            return error;
    }
    placeDrives(parsed);
    std::string error = checkDrives(parsed);
    if (error.empty())
        drives = parsed;
    return error;
}

std::string checkDrives(const std::vector<DriveOptions> &drives)
{
    std::set<int> taken;
    for (const DriveOptions &drive : drives) {
        if (!findProfile(drive.profile))
            return "there is no drive profile \"" + drive.profile + "\"";
        if (drive.address < lowestAddress || drive.address > highestAddress)
            return "address " + std::to_string(drive.address) + " is not between 1 and 250";
        if (!taken.insert(drive.address).second)
            return "two drives at address " + std::to_string(drive.address);
    }
    return {};
}

} // namespace sim
