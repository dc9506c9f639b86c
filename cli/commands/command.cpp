#include "command.h"

#include "commandline.h"

Command &Command::says(const char *shortly, const char *atLength)
{
    summary = shortly;
    details = atLength;
    return *this;
}

Command &Command::takes(const char *text, int minimum, int maximum)
{
    usage = text;
    minArguments = minimum;
    maxArguments = maximum;
    return *this;
}

Command &Command::takesFile(const char *text, int minimum)
{
    argumentIsFile = true;
    return takes(text, minimum, 1);
}

Command &Command::flag(const char *option, const char *help)
{
    options.append({option, nullptr, help});
    return *this;
}

Command &Command::value(const char *option, const char *value, const char *help, Option::Kind kind)
{
    options.append({option, value, help, kind});
    return *this;
}

Command &Command::checks(Check function)
{
    check = function;
    return *this;
}

Command &Command::offlineWith(const char *option, Offline function)
{
    offlineOption = option;
    runOffline = function;
    return *this;
}

bool Command::needsDrive(const CommandLine &line) const
{
    return run != nullptr && !(offlineOption != nullptr && line.has(offlineOption));
}
