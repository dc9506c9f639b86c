/// \file
/// A symbolic link to the bus's port, under a name that a program is willing to open.
#ifndef VELBRIN_SIM_PORTLINK_H
#define VELBRIN_SIM_PORTLINK_H

#include <string>

namespace sim {

class PortLink
{
public:
    /// An empty path makes no link.
    explicit PortLink(std::string path) : m_path(std::move(path)) {}
    ~PortLink() { remove(); }
    PortLink(const PortLink &) = delete;
    PortLink &operator=(const PortLink &) = delete;

    /// Points the link at a port, in place of a link that a killed run left behind. Empty on success, else what is in
    /// the way: something else than such a link, or the link of a virtual drive that is running.
    std::string make(const std::string &port);
    /// Takes away what make() made, if it is still that.
    void remove();

private:
    std::string inTheWay(const std::string &port);
    bool claimName();

    std::string m_path;
    std::string m_made; ///< what the link points at; empty when there is none of ours
    int m_claim = -1;   ///< a socket that says, while this process lives, that the name is in use
};

} // namespace sim

#endif
