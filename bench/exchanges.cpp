// Exchanges per second over the virtual bus, paced as a real line would be, against what the wire allows at most. The
// difference is what our side costs: system calls, wake-ups, decoding. The unpaced column is that cost alone.
#include "virtualbus.h"
#include "zetabus.h"

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace {

constexpr int driveAddress = 5;
constexpr std::int16_t firmwareVersion = 6010;
constexpr std::int16_t minimumOf = 0x4000;
constexpr int pollRegisters = 27; // as many as a reply holds

ZbStatus askClock(ZbHandle bus)
{
    std::uint16_t clock = 0;
    return zbGetBufferClock(bus, driveAddress, &clock);
}

ZbStatus readOne(ZbHandle bus)
{
    long value = 0;
    return zbRead1Parameter(bus, driveAddress, firmwareVersion, &value);
}

// A record of the full read: value, minimum, maximum.
ZbStatus readRecord(ZbHandle bus)
{
    long value = 0, minimum = 0, maximum = 0;
    const auto maximumAddress = static_cast<std::int16_t>(firmwareVersion + 2 * minimumOf);
    return zbRead3Parameters(bus, driveAddress, firmwareVersion, &value, firmwareVersion + minimumOf, &minimum,
                             maximumAddress, &maximum);
}

// The status poll: the selector walks over the registers, each item returns the one it has named.
ZbStatus pollStatus(ZbHandle bus)
{
    ZbStatus status = zbAppendZBCommandToQueue(bus, ZB_QUEUE_ADDRESS, 10);
    status |= zbAppendZBCommandToQueue(bus, ZB_QUEUE_VALUE24, 0);
    status |= zbAppendZBCommandToQueue(bus, ZB_QUEUE_ADDRESS, 9);
    for (int i = 0; i < pollRegisters; ++i)
        status |= zbAppendZBCommandToQueue(bus, ZB_QUEUE_VALUE24, 950 + i);
    status |= zbExecuteCommandQueue(bus, driveAddress);
    for (int i = 0; i < 3 + pollRegisters; ++i)
        status |= zbGetQueuedZBCommandReturnValue(bus, nullptr);
    return status;
}

struct Shape
{
    const char *name;
    ZbStatus (*run)(ZbHandle);
    int wireBytes; ///< request and reply with their framing
};

constexpr Shape shapes[] = {
    {"clock", askClock, 4 + 6},
    {"one read", readOne, 15 + 21},
    {"record (3 reads)", readRecord, 35 + 53},
    {"status poll (27)", pollStatus, 93 + 125},
};

double wireLimit(const Shape &shape)
{
    constexpr double bitsPerByte = 10;
    return ZB_BAUD_RATE / (bitsPerByte * shape.wireBytes);
}

// Exchanges per second, or a negative number after a failed one.
double measure(ZbHandle bus, const Shape &shape, double seconds)
{
    using Clock = std::chrono::steady_clock;
    const Clock::time_point start = Clock::now();
    double elapsed = 0;
    int count = 0;
    while (elapsed < seconds) {
        if (shape.run(bus) != ZB_OK)
            return -1;
        ++count;
        elapsed = std::chrono::duration<double>(Clock::now() - start).count();
    }
    return count / elapsed;
}

int compareShapes(sim::VirtualBus &line, ZbHandle bus, double seconds)
{
    std::printf("exchange\tper second\twire allows\tratio\tunpaced\n");
    for (const Shape &shape : shapes) {
        line.setLineRate(true);
        const double paced = measure(bus, shape, seconds);
        line.setLineRate(false);
        const double unpaced = measure(bus, shape, seconds);
        if (paced < 0 || unpaced < 0) {
            std::fprintf(stderr, "%s: an exchange failed\n", shape.name);
            return 1;
        }
        const double limit = wireLimit(shape);
        std::printf("%s\t%.0f\t%.0f\t%.2f\t%.0f\n", shape.name, paced, limit, paced / limit, unpaced);
    }
    return 0;
}

} // namespace

int main(int argc, char **argv)
{
    const double seconds = argc > 1 ? std::atof(argv[1]) : 2;
    if (argc > 2 || seconds <= 0) {
        std::fprintf(stderr, "usage: bench_exchanges [SECONDS A MEASUREMENT]\n");
        return 2;
    }
    char folder[] = "/tmp/velbrin-bench-XXXXXX";
    if (!mkdtemp(folder))
        return 1;
    std::filesystem::current_path(folder);

    sim::BusOptions options;
    options.drives = {{"keta", driveAddress, false}};
    options.linkPath = "COM1";
    int result = 1;
    {
        sim::VirtualBus line(options);
        const std::string error = line.start();
        const ZbHandle bus = error.empty() ? zbOpenBus("COM1") : -1;
        if (bus < 0)
            std::fprintf(stderr, "no virtual bus: %s\n", error.c_str());
        else
            result = compareShapes(line, bus, seconds);
        zbCloseBus(bus);
    }
    std::filesystem::current_path("/");
    std::filesystem::remove_all(folder);
    return result;
}
