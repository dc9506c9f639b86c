#include "debug.h"

#include "busrecord.h"

#include <cstdarg>

namespace {

int debugThreshold = 4;
std::FILE *debugStream = nullptr;

} // namespace

void zbSetDebugOutput(int threshold, std::FILE *stream)
{
    debugThreshold = threshold;
    debugStream = stream;
}

void zbDebug(ZbHandle handle, int verbosity, const char *format, ...)
{
    const BusState *bus = openBus(handle);
    if (!bus || !debugStream || verbosity > debugThreshold)
        return;
    char message[1024];
    va_list arguments;
    va_start(arguments, format);
    std::vsnprintf(message, sizeof message, format, arguments);
    va_end(arguments);
    std::fprintf(debugStream, "%s: %s", bus->name, message);
}
