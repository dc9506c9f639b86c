#include "firmwarewriter.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <numeric>

namespace sim {

namespace {

constexpr std::uint16_t formatVersion = 300;
constexpr std::size_t ioWords = 2500; // not a multiple of the 32 words of an upload: the last chunk is filled up
constexpr std::size_t coreWords = 1200;

void append(Bytes &bytes, std::uint32_t value, int count)
{
    for (int i = 0; i < count; ++i)
        bytes.push_back(static_cast<std::uint8_t>(value >> 8 * i));
}

/// Words that never repeat in the same order, so that a lost or doubled chunk is seen.
std::vector<std::uint16_t> sampleImage(std::size_t words, std::uint32_t seed)
{
    std::vector<std::uint16_t> image(words);
    for (std::uint16_t &word : image) {
        seed = seed * 1664525u + 1013904223u;
        word = static_cast<std::uint16_t>(seed >> 16);
    }
    return image;
}

} // namespace

Bytes firmwareFile(std::int32_t deviceType, const std::vector<std::uint16_t> &ioImage,
                   const std::vector<std::uint16_t> &coreImage)
{
    Bytes bytes{'T', 'D', 'F', 'W'};
    append(bytes, formatVersion, 2);
    append(bytes, static_cast<std::uint32_t>(deviceType), 2);
    append(bytes, static_cast<std::uint32_t>(ioImage.size() * 2), 4);
    append(bytes, static_cast<std::uint32_t>(coreImage.size() * 2), 4);
    for (const auto *image : {&ioImage, &coreImage}) {
        for (const std::uint16_t word : *image)
            append(bytes, word, 2);
    }
    append(bytes, std::accumulate(bytes.begin(), bytes.end(), std::uint32_t(0)), 4);
    return bytes;
}

Bytes sampleFirmware(const DriveProfile &profile)
{
    const auto seed = static_cast<std::uint32_t>(profile.deviceType);
    return firmwareFile(profile.deviceType, sampleImage(ioWords, seed),
                        profile.hasIoProcessor ? sampleImage(coreWords, seed + 1) : std::vector<std::uint16_t>());
}

std::string writeFile(const std::string &path, const Bytes &bytes)
{
    const auto failed = [&] { return path + ": " + std::strerror(errno); };
    std::FILE *file = std::fopen(path.c_str(), "wb");
    if (!file)
        return failed();
    const bool written = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
    if (std::fclose(file) != 0 || !written)
        return failed();
    return {};
}

} // namespace sim
