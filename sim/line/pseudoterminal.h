/// \file
/// The port that the virtual bus offers: a pseudo terminal whose far end the PC's program opens.
#ifndef VELBRIN_SIM_PSEUDOTERMINAL_H
#define VELBRIN_SIM_PSEUDOTERMINAL_H

#include "drivepacket.h"

#include <string>

namespace sim {

class PseudoTerminal
{
public:
    PseudoTerminal() = default;
    ~PseudoTerminal() { close(); }
    PseudoTerminal(const PseudoTerminal &) = delete;
    PseudoTerminal &operator=(const PseudoTerminal &) = delete;

    /// Empty on success, else what went wrong.
    std::string open();
    /// Pulls the adapter: whoever has the port open meets its end.
    void close();
    bool isOpen() const { return m_master >= 0; }

    /// Path of the port to open, kept after close.
    const std::string &name() const { return m_name; }
    /// For poll().
    int descriptor() const { return m_master; }

    /// What has arrived, without waiting; empty when nothing has.
    Bytes read();
    /// Sends what the port takes; like on a line, bytes that nobody takes are lost.
    void write(const Bytes &bytes);

private:
    int m_master = -1;
    int m_slave = -1; ///< held open, so that the port survives its users coming and going
    std::string m_name;
};

} // namespace sim

#endif
