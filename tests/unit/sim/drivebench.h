/// \file
/// A virtual drive on the bench: requests go in as the items of a payload, typed out, and come back the same way.
#ifndef DRIVEBENCH_H
#define DRIVEBENCH_H

#include "registers.h"
#include "virtualdrive.h"

#include <gtest/gtest.h>

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

    sim::VirtualDrive drive;
};

#endif
