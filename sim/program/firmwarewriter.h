/// \file
/// Makes firmware files, so that an upgrade can be tried without the maker's.
#ifndef VELBRIN_SIM_FIRMWAREWRITER_H
#define VELBRIN_SIM_FIRMWAREWRITER_H

#include "drivepacket.h"
#include "driveprofile.h"

namespace sim {

/// A whole firmware file: "TDFW", format 300, device type, both lengths, both images, sum of all bytes before it; all
/// numbers little-endian.
Bytes firmwareFile(std::int32_t deviceType, const std::vector<std::uint16_t> &ioImage,
                   const std::vector<std::uint16_t> &coreImage);

/// A small one for a model: an I/O-side image, and a core image where the model has a processor for it.
Bytes sampleFirmware(const DriveProfile &profile);

/// Writes bytes to a file. Empty on success, else what went wrong.
std::string writeFile(const std::string &path, const Bytes &bytes);

} // namespace sim

#endif
