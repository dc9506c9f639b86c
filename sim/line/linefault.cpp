#include "linefault.h"

#include <algorithm>
#include <cctype>

namespace sim {

namespace {

using Random = std::minstd_rand;

struct KindRow
{
    LineFault::Kind kind;
    const char *name;
    const char *help;
    /// What it does to a reply at a byte within; null where the bus does it (see busworker.cpp).
    void (*damage)(Bytes &reply, std::size_t at, Random &random) = nullptr;
};

Bytes::iterator byteAt(Bytes &reply, std::size_t at)
{
    return reply.begin() + static_cast<std::ptrdiff_t>(at);
}

const KindRow kindTable[] = {
    {LineFault::Drop, "drop", "a byte of every reply is lost (AT: which, from 0)",
     [](Bytes &reply, std::size_t at, Random &) { reply.erase(byteAt(reply, at)); }},
    {LineFault::Flip, "flip", "a bit of a byte is inverted (AT: which byte)",
     [](Bytes &reply, std::size_t at, Random &random) { reply[at] ^= static_cast<std::uint8_t>(1u << random() % 8); }},
    {LineFault::Double, "double", "a byte arrives twice (AT: which)",
     [](Bytes &reply, std::size_t at, Random &) { reply.insert(byteAt(reply, at), reply[at]); }},
    {LineFault::Twice, "twice", "the whole reply arrives twice, in one piece",
     [](Bytes &reply, std::size_t, Random &) {
         const Bytes once = reply;
         reply.insert(reply.end(), once.begin(), once.end());
     }},
    {LineFault::Cut, "cut", "the reply ends early (AT: bytes that arrive)",
     [](Bytes &reply, std::size_t at, Random &) { reply.erase(byteAt(reply, at), reply.end()); }},
    {LineFault::Late, "late", "the reply comes late (AT: milliseconds)"},
    {LineFault::Missing, "missing", "the drive executes, but its reply is lost"},
    {LineFault::Deaf, "deaf", "the request is lost before the drive hears it"},
    {LineFault::Noise, "noise", "random bytes that never end, once the first request came"},
    {LineFault::Unplugged, "unplugged", "the port goes away instead of the reply"},
};

const KindRow *find(LineFault::Kind kind)
{
    const auto row =
        std::find_if(std::begin(kindTable), std::end(kindTable), [=](const KindRow &r) { return r.kind == kind; });
    return row == std::end(kindTable) ? nullptr : row;
}

constexpr int defaultLateness = 100; // ms
constexpr std::size_t mostDigits = 6;

/// Takes a number that stands behind `mark` off the text's end, where there is one. An "x" may also be part of a name.
void takeNumber(std::string &text, char mark, int &number)
{
    const std::size_t at = text.rfind(mark);
    if (at == std::string::npos)
        return;
    const std::string digits = text.substr(at + 1);
    const bool isNumber = !digits.empty() && digits.size() <= mostDigits &&
                          std::all_of(digits.begin(), digits.end(), [](unsigned char c) { return std::isdigit(c); });
    if (!isNumber)
        return;
    number = std::stoi(digits);
    text.erase(at);
}

} // namespace

const std::vector<LineFault::Kind> &LineFault::allKinds()
{
    static const std::vector<Kind> kinds = [] {
        std::vector<Kind> list;
        for (const KindRow &row : kindTable)
            list.push_back(row.kind);
        return list;
    }();
    return kinds;
}

std::string LineFault::name(Kind kind)
{
    const KindRow *row = find(kind);
    return row ? row->name : "none";
}

std::string parseLineFault(const std::string &text, LineFault &fault)
{
    LineFault parsed;
    std::string name = text;
    takeNumber(name, 'x', parsed.count);
    takeNumber(name, '+', parsed.skip);
    takeNumber(name, '=', parsed.at);
    const bool isWord =
        !name.empty() && std::all_of(name.begin(), name.end(), [](char c) { return c >= 'a' && c <= 'z'; });
    if (!isWord)
        return "\"" + text + "\" is not of the form KIND[=AT][+SKIP][xCOUNT]";
    const auto known = std::find_if(std::begin(kindTable), std::end(kindTable),
                                    [&](const KindRow &candidate) { return name == candidate.name; });
    if (known == std::end(kindTable))
        return "there is no line fault \"" + name + "\"";
    parsed.kind = known->kind;
    fault = parsed;
    return {};
}

std::string lineFaultHelp()
{
    constexpr std::size_t column = 11;
    std::string help;
    for (const KindRow &kind : kindTable) {
        const std::string name = kind.name;
        help += "  " + name + std::string(std::max(column, name.size() + 1) - name.size(), ' ') + kind.help + "\n";
    }
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
    const std::size_t at = pick(reply.size());
    if (at >= reply.size())
        return reply;
    const KindRow *row = find(kind);
    if (row && row->damage)
        row->damage(reply, at, m_random);
    return reply;
}

std::chrono::milliseconds LineDamage::lateness() const
{
    return std::chrono::milliseconds(m_at == LineFault::anyByte ? defaultLateness : m_at);
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
    if (m_at != LineFault::anyByte)
        return static_cast<std::size_t>(m_at);
    return size == 0 ? 0 : m_random() % size;
}

} // namespace sim
