#include "statefile.h"

#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <map>
#include <sstream>
#include <sys/stat.h>
#include <unistd.h>

namespace sim {

namespace {

constexpr char firstLine[] = "velbrin-sim state 1";
constexpr char cutOffLine[] = "firmware=cut-off";
constexpr std::size_t mostLines = 100000; ///< more is no state file

/// By model and address.
using Key = std::pair<std::string, int>;
using Sections = std::map<Key, Flash>;

std::string atLine(const std::string &path, std::size_t line, const char *what)
{
    return path + ": line " + std::to_string(line) + ": " + what;
}

/// One line of a section. False when it is none.
bool readLine(const std::string &text, Sections &sections, Flash *&section)
{
    char profile[32];
    int address = 0;
    int value = 0;
    int used = 0;
    const auto whole = [&] { return used == static_cast<int>(text.size()); };
    if (std::sscanf(text.c_str(), "drive %31s %9d%n", profile, &address, &used) == 2 && whole()) {
        section = &sections[{profile, address}];
        return true;
    }
    if (!section)
        return false;
    if (text == cutOffLine) {
        section->firmwareIntact = false;
        return true;
    }
    used = 0;
    if (std::sscanf(text.c_str(), "%9d=%11d%n", &address, &value, &used) == 2 && whole()) {
        section->settings[address] = value;
        return true;
    }
    return false;
}

/// The file behind a link of one's own, or the path itself. A link that somebody else has put there, as anybody can in
/// a folder for all, is not followed: it would have their file read, or one of ours overwritten.
std::string resolve(const std::string &path, std::string &file)
{
    struct stat info
    {
    };
    file = path;
    if (lstat(path.c_str(), &info) != 0 || !S_ISLNK(info.st_mode))
        return {};
    if (info.st_uid != geteuid() && info.st_uid != 0)
        return path + ": a link that belongs to somebody else";
    char *const real = realpath(path.c_str(), nullptr);
    if (!real)
        return path + ": " + std::strerror(errno);
    file = real;
    std::free(real);
    return {};
}

std::string readSections(const std::string &path, Sections &sections)
{
    struct stat info
    {
    };
    if (lstat(path.c_str(), &info) != 0)
        return errno == ENOENT ? std::string() : path + ": " + std::strerror(errno);
    if (!S_ISREG(info.st_mode))
        return path + ": not a file";
    std::ifstream file(path);
    if (!file)
        return path + ": " + std::strerror(errno);
    std::string text;
    std::getline(file, text);
    if (text != firstLine)
        return path + ": not a state file of the virtual drive";
    Flash *section = nullptr;
    std::size_t line = 1;
    while (std::getline(file, text)) {
        if (++line > mostLines)
            return atLine(path, line, "no end of settings");
        if (!text.empty() && !readLine(text, sections, section))
            return atLine(path, line, "neither a drive nor a setting");
    }
    return file.bad() ? path + ": reading failed" : std::string();
}

std::string writeWhole(const std::string &path, const std::string &contents)
{
    const std::string temporary = path + ".new";
    const auto failed = [&] {
        const std::string error = temporary + ": " + std::strerror(errno);
        unlink(temporary.c_str());
        return error;
    };
    // Made anew: whatever has this name, a link above all, is not written through.
    unlink(temporary.c_str());
    std::FILE *file = std::fopen(temporary.c_str(), "wx");
    if (!file)
        return temporary + ": " + std::strerror(errno);
    bool good = std::fwrite(contents.data(), 1, contents.size(), file) == contents.size();
    good = std::fflush(file) == 0 && fsync(fileno(file)) == 0 && good;
    good = std::fclose(file) == 0 && good;
    return good && std::rename(temporary.c_str(), path.c_str()) == 0 ? std::string() : failed();
}

} // namespace

std::string loadState(const std::string &path, Drives &drives)
{
    Sections sections;
    std::string file;
    std::string error = resolve(path, file);
    if (error.empty())
        error = readSections(file, sections);
    if (!error.empty())
        return error;
    for (const auto &drive : drives) {
        const auto found = sections.find({drive->profile().name, drive->ownAddress()});
        if (found != sections.end())
            drive->powerUp(found->second);
    }
    return {};
}

std::string saveState(const std::string &path, const Drives &drives)
{
    Sections sections;
    std::string file;
    const std::string error = resolve(path, file);
    if (!error.empty())
        return error;
    readSections(file, sections); // of drives that are elsewhere now; a file that cannot be read is replaced
    for (const auto &drive : drives)
        sections[{drive->profile().name, drive->ownAddress()}] = drive->flash();
    std::ostringstream text;
    text << firstLine << '\n';
    for (const auto &[key, flash] : sections) {
        text << "drive " << key.first << ' ' << key.second << '\n';
        if (!flash.firmwareIntact)
            text << cutOffLine << '\n';
        for (const auto &[address, value] : flash.settings)
            text << address << '=' << value << '\n';
    }
    return writeWhole(file, text.str());
}

} // namespace sim
