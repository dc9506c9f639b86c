/// \file
/// A firmware image whose words tell where they came from.
#ifndef VELBRIN_TESTS_NUMBEREDWORDS_H
#define VELBRIN_TESTS_NUMBEREDWORDS_H

#include <cstdint>
#include <numeric>
#include <vector>

using Words = std::vector<std::uint16_t>;

inline Words numberedWords(int count, int first = 0xA000)
{
    Words words(static_cast<std::size_t>(count));
    std::iota(words.begin(), words.end(), static_cast<std::uint16_t>(first));
    return words;
}

#endif
