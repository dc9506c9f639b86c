#include "bussearch.h"

#include <QElapsedTimer>

namespace {
constexpr int lastScannedNode = 20;
constexpr int firstUpgradeNode = 251;
constexpr int lastNode = 255;
constexpr int askedAtMost = 3; // times, until an address counts as unreadable
constexpr int noisyLimit = 3;  // exchanges in a row

/// Bus addresses in the order of the scan.
QList<int> scanAddresses()
{
    QList<int> result;
    for (int address = 1; address <= lastScannedNode; ++address)
        result << address;
    for (int address = firstUpgradeNode; address <= lastNode; ++address)
        result << address;
    return result;
}
} // namespace

/// One question to one address, and not a second one to the silent, who are most of them. The reply to a question
/// before it may come instead of its own.
BusSearch::Heard BusSearch::askWho(int address, NodeType &node)
{
    m_line.startTask(); // silence is normal here
    m_line.clearStatus();
    m_line.setNodeAddress(address);
    long type = 0;
    long mode = 0;
    m_line.appendRead(reg::DeviceType);
    m_line.appendRead(reg::OperatingMode);
    m_line.execute();
    m_line.fetchRead(&type);
    m_line.fetchRead(&mode);
    m_line.finishReply();
    if (m_line.status() != ZB_OK)
        return m_line.wasSilent() ? Heard::Nothing : Heard::Noise;
    node.address = m_line.replyAddress();
    node.firmwareUpgradeMode = node.address >= firstUpgradeNode || mode == 0;
    node.deviceType = static_cast<int>(type);
    return Heard::Reply;
}

BusSearch::Result BusSearch::searchDrives()
{
    m_noisyExchanges = 0;
    QMap<int, NodeType> found;
    const QList<int> addresses = scanAddresses();
    for (int i = 0; i < addresses.size(); ++i) {
        if (!m_serveDisable())
            return {found.values(), false, true};
        emit m_out.scanProgress(i, int(addresses.size()));
        searchAt(addresses[i], found);
    }
    return {found.values(), m_noisyExchanges >= noisyLimit, m_line.isGone()};
}

/// What is not a good reply is asked again: it must neither hide a drive nor make the one beside it look like the only
/// one.
void BusSearch::searchAt(int address, QMap<int, NodeType> &found)
{
    int unreadable = 0;
    bool isDecided = found.contains(address);
    for (int attempt = 0; attempt < askedAtMost && !isDecided; ++attempt) {
        if (isOver())
            return;
        QElapsedTimer timer;
        timer.start();
        NodeType node;
        const Heard heard = askWho(address, node);
        // A line that babbles instead of being silent costs seconds an exchange, and would go on doing so.
        m_noisyExchanges = timer.elapsed() > 10 * scanTimeoutMs ? m_noisyExchanges + 1 : 0;
        unreadable += heard == Heard::Noise;
        // A late reply is listed for the drive that sent it, and its place in the line is asked anew.
        if (heard == Heard::Reply)
            found.insert(node.address, node);
        isDecided = found.contains(address) || (heard == Heard::Nothing && unreadable == 0);
    }
    // Once may have been a spike on a silent line.
    if (!found.contains(address) && unreadable > 1)
        found.insert(address, NodeType{address, address >= firstUpgradeNode, 0, true});
}

bool BusSearch::isOver() const
{
    return m_pauses.isClosing() || m_noisyExchanges >= noisyLimit || m_line.isGone();
}
