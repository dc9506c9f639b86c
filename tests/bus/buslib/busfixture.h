/// \file
/// A bus that is open on a raw line.
#ifndef VELBRIN_TESTS_BUSFIXTURE_H
#define VELBRIN_TESTS_BUSFIXTURE_H

#include "rawline.h"
#include "zetabus.h"

#include <chrono>

/// Milliseconds since construction.
class Stopwatch
{
public:
    long long elapsed() const
    {
        using namespace std::chrono;
        return duration_cast<milliseconds>(steady_clock::now() - m_start).count();
    }

private:
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

class OnALine : public testing::Test
{
protected:
    void TearDown() override
    {
        zbCloseBus(bus);
        zbSetTimeout(500);
        zbSetDebugOutput(4, nullptr);
    }

    /// A time-out below 100 ms never waits: for replies that stand ready before they are asked for.
    void open(std::uint16_t timeout = neverWait)
    {
        ASSERT_EQ(zbSetTimeout(timeout), ZB_OK);
        bus = zbOpenBus("COM1");
        ASSERT_EQ(bus, 0);
        zbResetZB485variables(bus);
        zbSetTimeout(500);
    }

    static constexpr std::uint16_t neverWait = 50;
    static constexpr std::uint16_t shortWait = 100;
    static constexpr std::uint16_t longWait = 5000;

    RawLine line;
    ZbHandle bus = -1;
};

#endif
