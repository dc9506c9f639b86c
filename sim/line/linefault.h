/// \file
/// What can go wrong between a drive and the PC, and the tools to make it happen.
#ifndef VELBRIN_SIM_LINEFAULT_H
#define VELBRIN_SIM_LINEFAULT_H

#include "drivepacket.h"

#include <chrono>
#include <deque>
#include <random>
#include <string>
#include <vector>

namespace sim {

struct LineFault
{
    enum Kind {
        None,
        Drop,      ///< the reply lacks its byte `at`
        Flip,      ///< one bit of byte `at` is inverted
        Double,    ///< byte `at` arrives twice
        Twice,     ///< the whole reply arrives twice, in one piece
        Cut,       ///< the reply ends before byte `at`
        Late,      ///< the reply comes `at` milliseconds late
        Missing,   ///< executed, but the reply is lost
        Deaf,      ///< the request is lost: nothing is executed
        Noise,     ///< the reply is followed by random bytes at line rate, without end
        Unplugged, ///< the port goes away instead of the reply
    };
    static constexpr int anyByte = -1; ///< a random byte of each reply; for Late, a tenth of a second
    static constexpr int unlimited = -1;

    Kind kind = None;
    int at = anyByte;
    int skip = 0;          ///< replies that still pass unharmed
    int count = unlimited; ///< replies that are hit, then the line is well again

    /// Every kind but None, for whoever tries them all.
    static const std::vector<Kind> &allKinds();
    /// As on the command line.
    static std::string name(Kind kind);
};

/// KIND[=AT][+SKIP][xCOUNT], as in "drop", "cut=7", "late=250x1", "unplugged+40". Empty on success, else what is wrong.
std::string parseLineFault(const std::string &text, LineFault &fault);

/// One line a kind, for --help.
std::string lineFaultHelp();

/// Applies faults to a stream of replies, one after the other: the next one begins when the one before has hit its
/// count. Deterministic: the same faults on the same replies do the same.
class LineDamage
{
public:
    void setFaults(const std::vector<LineFault> &faults);

    /// Whether the next exchange is hit, and counts it.
    LineFault::Kind nextExchange();
    /// The reply as it arrives when hit by this kind.
    Bytes damaged(Bytes reply, LineFault::Kind kind);
    std::chrono::milliseconds lateness() const;
    /// Random bytes, no packet.
    Bytes noise(std::size_t count);

private:
    std::size_t pick(std::size_t size);

    std::deque<LineFault> m_faults;
    int m_at = LineFault::anyByte; ///< of the fault that hits the present exchange
    std::minstd_rand m_random{1};
};

} // namespace sim

#endif
