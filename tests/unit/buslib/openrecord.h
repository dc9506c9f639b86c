/// \file
/// A bus handle that is open without a port: enough for the queue and the receive state machine. Sends fail on it and
/// nothing is ever received.
#ifndef VELBRIN_TESTS_OPENRECORD_H
#define VELBRIN_TESTS_OPENRECORD_H

#include "busrecord.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdio>
#include <initializer_list>

class OpenRecord : public testing::Test
{
protected:
    void SetUp() override
    {
        zbBusesInit();
        open(handle);
    }
    void TearDown() override
    {
        zbSetDebugOutput(4, nullptr);
        zbBusesInit();
    }

    static void open(ZbHandle which)
    {
        *busRecord(which) = BusState();
        busRecord(which)->open = 1;
        std::snprintf(busRecord(which)->name, sizeof busRecord(which)->name, "COM%d", which);
    }

    BusState &bus() { return *busRecord(handle); }

    /// Puts a payload where a reply would have left it.
    void received(std::initializer_list<std::uint8_t> payload)
    {
        std::copy(payload.begin(), payload.end(), bus().packetBuffer);
        bus().expectedPayloadSize = static_cast<std::int16_t>(payload.size());
        bus().returnReadIndex = 0;
    }

    static constexpr ZbHandle handle = 0;
};

#endif
