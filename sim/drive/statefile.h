/// \file
/// The state file: what the drives' flash holds, kept across runs of the virtual bus.
///
/// Plain text, one "drive PROFILE ADDRESS" section a drive with its settings as "REGISTER=VALUE" lines and, while an
/// upgrade is unfinished, "firmware=cut-off".
#ifndef VELBRIN_SIM_STATEFILE_H
#define VELBRIN_SIM_STATEFILE_H

#include "virtualdrive.h"

#include <memory>
#include <string>
#include <vector>

namespace sim {

using Drives = std::vector<std::unique_ptr<VirtualDrive>>;

/// Powers up every drive that the file knows (by model and address) with what it kept. A file that does not exist is an
/// empty one, a link is followed if it is the user's own. Returns the error text, empty on success; after an error no
/// drive has changed.
std::string loadState(const std::string &path, Drives &drives);

/// Replaces the file as a whole, or leaves the old one. Sections of drives that are not on the bus now are kept.
/// Returns the error text, empty on success.
std::string saveState(const std::string &path, const Drives &drives);

} // namespace sim

#endif
