/// \file
/// A virtual drive on the bench: requests go in as the items of a payload, typed out, and come back the same way.
#ifndef VELBRIN_TESTS_DRIVEBENCH_H
#define VELBRIN_TESTS_DRIVEBENCH_H

#include "registers.h"
#include "virtualdrive.h"

#include <gtest/gtest.h>
#include <utility>
#include <vector>

/// Register and value, in the order in which they are written.
using Writes = std::vector<std::pair<int, std::int32_t>>;

/// A drive that goes on by the cycle, at address 5.
struct BenchDrive : sim::VirtualDrive
{
    explicit BenchDrive(const char *profile = "keta", const Writes &settings = {}, const sim::Machine &load = {})
        : VirtualDrive(*sim::findProfile(profile), 5, load)
    {
        writeAll(settings);
    }
    void writeAll(const Writes &writes)
    {
        for (const auto &[address, value] : writes)
            EXPECT_EQ(write(address, value), sim::Outcome::Done) << address << " := " << value;
    }
    void enable()
    {
        write(sim::reg::SoftEnable, 1);
        advanceCycles(5);
    }
    /// Where it is after this setpoint and this many cycles.
    int moved(int setpoint, int cycles = 2500)
    {
        write(sim::reg::SetpointAbsolute, setpoint);
        advanceCycles(cycles);
        return read(sim::reg::PositionFeedback);
    }
};

class DriveBench : public testing::Test
{
protected:
    /// Payload of the reply to an instant command; empty when there is none.
    sim::Bytes ask(const sim::Bytes &items, std::uint8_t id = sim::InstantCommand)
    {
        const std::optional<sim::Packet> reply = drive.answer({id, std::uint8_t(drive.address()), items});
        return reply ? reply->payload : sim::Bytes();
    }

    /// Writes, and gives the error bits that this left behind; clears them.
    std::int32_t errorsOfWriting(int address, std::int32_t value)
    {
        drive.write(address, value);
        const std::int32_t errors = drive.read(sim::reg::ErrorBits);
        drive.write(sim::reg::ErrorBits, 0);
        return errors;
    }

    bool has(std::int32_t statusBit) const { return drive.read(sim::reg::Status) & statusBit; }
    std::int32_t faults() const { return drive.read(sim::reg::Faults); }
    int position() const { return drive.read(sim::reg::PositionFeedback); }

    /// Runs until the status bit is as wanted; cycles that took, -1 when it never was.
    int cyclesUntil(std::int32_t statusBit, bool isSet, int limit = 10000)
    {
        for (int cycle = 0; cycle < limit; ++cycle) {
            if (has(statusBit) == isSet)
                return cycle;
            drive.advanceCycles(1);
        }
        return -1;
    }
    /// Off and on again as it left the factory, for the next row of a table.
    void startAfresh()
    {
        drive.powerUp({});
        drive.axis().inputs() = fresh;
    }

    BenchDrive drive;
    const sim::AxisInputs fresh = drive.axis().inputs();
};

#endif
