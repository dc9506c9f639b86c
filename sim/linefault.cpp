#include "linefault.h"

#include <algorithm>
#include <regex>

namespace sim {

namespace {

struct KindName
{
    LineFault::Kind kind;
    const char *name;
    const char *help;
};

constexpr KindName Kinds[] = {
    {LineFault::Drop, "drop", "a byte of every reply is lost (AT: which, from 0)"},
    {LineFault::Flip, "flip", "a bit of a byte is inverted (AT: which byte)"},
    {LineFault::Double, "double", "a byte arrives twice (AT: which)"},
    {LineFault::Twice, "twice", "the whole reply arrives twice, in one piece"},
    {LineFault::Cut, "cut", "the reply ends early (AT: bytes that arrive)"},
    {LineFault::Late, "late", "the reply comes late (AT: milliseconds)"},
    {LineFault::Missing, "missing", "the drive executes, but its reply is lost"},
    {LineFault::Deaf, "deaf", "the request is lost before the drive hears it"},
    {LineFault::Noise, "noise", "random bytes that never end, once the first request came"},
    {LineFault::Unplugged, "unplugged", "the port goes away instead of the reply"},
};

constexpr int DefaultLateness = 100; // ms

} // namespace

std::string parseLineFault(const std::string &text, LineFault &fault)
{
    static const std::regex pattern("([a-z]+)(=(\\d{1,6}))?(\\+(\\d{1,6}))?(x(\\d{1,6}))?");
    std::smatch part;
    if (!std::regex_match(text, part, pattern))
        return "\"" + text + "\" is not of the form KIND[=AT][+SKIP][xCOUNT]";
    const auto known = std::find_if(std::begin(Kinds), std::end(Kinds),
                                    [&](const KindName &candidate) { return part[1] == candidate.name; });
    if (known == std::end(Kinds))
        return "there is no line fault \"" + part[1].str() + "\"";
    fault = {known->kind};
    if (part[3].matched)
        fault.at = std::stoi(part[3]);
    if (part[5].matched)
        fault.skip = std::stoi(part[5]);
    if (part[7].matched)
        fault.count = std::stoi(part[7]);
    return {};
}

std::string lineFaultHelp()
{
    std::string help;
    for (const KindName &kind : Kinds)
        help +=
            "      " + std::string(kind.name) + std::string(11 - std::string(kind.name).size(), ' ') + kind.help + "\n";
    return help;
}

void LineDamage::setFaults(const std::vector<LineFault> &faults)
{
    m_faults.assign(faults.begin(), faults.end());
    m_random.seed(1);
}

LineFault::Kind LineDamage::nextExchange()
{
    while (!m_faults.empty() && m_faults.front().count == 0)
        m_faults.pop_front();
    if (m_faults.empty())
        return LineFault::None;
    LineFault &fault = m_faults.front();
    if (fault.skip > 0) {
        --fault.skip;
        return LineFault::None;
    }
    if (fault.count > 0)
        --fault.count;
    m_at = fault.at;
    return fault.kind;
}

Bytes LineDamage::damaged(Bytes reply, LineFault::Kind kind)
{
    if (kind == LineFault::Twice) {
        const Bytes once = reply;
        reply.insert(reply.end(), once.begin(), once.end());
        return reply;
    }
    const std::size_t at = pick(reply.size());
    if (at >= reply.size())
        return reply;
    const auto byte = reply.begin() + static_cast<std::ptrdiff_t>(at);
    switch (kind) {
    case LineFault::Drop:
        reply.erase(byte);
        break;
    case LineFault::Flip:
        *byte ^= static_cast<std::uint8_t>(1u << m_random() % 8);
        break;
    case LineFault::Double:
        reply.insert(byte, *byte);
        break;
    case LineFault::Cut:
        reply.erase(byte, reply.end());
        break;
    default:
        break;
    }
    return reply;
}

std::chrono::milliseconds LineDamage::lateness() const
{
    return std::chrono::milliseconds(m_at == LineFault::AnyByte ? DefaultLateness : m_at);
}

Bytes LineDamage::noise(std::size_t count)
{
    Bytes bytes(count);
    for (std::uint8_t &byte : bytes)
        byte = static_cast<std::uint8_t>(m_random() >> 8);
    return bytes;
}

std::size_t LineDamage::pick(std::size_t size)
{
    if (m_at != LineFault::AnyByte)
        return static_cast<std::size_t>(m_at);
    return size == 0 ? 0 : m_random() % size;
}

} // namespace sim
