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

class DriveBench : public testing::Test
{
protected:
    explicit DriveBench(const char *profile = "keta") : drive(*sim::findProfile(profile), 5) {}

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

    void write(const Writes &writes)
    {
        for (const auto &[address, value] : writes)
            EXPECT_EQ(drive.write(address, value), sim::Outcome::Done) << address << " := " << value;
    }
    void enable()
    {
        drive.write(sim::reg::SoftEnable, 1);
        drive.advanceCycles(5);
    }
    /// Off and on again as it left the factory, for the next row of a table.
    void startAfresh()
    {
        drive.powerUp({});
        drive.axis().inputs() = fresh;
        drive.acceptWrites();
    }

    sim::VirtualDrive drive;
    const sim::AxisInputs fresh = drive.axis().inputs();
};

#endif
