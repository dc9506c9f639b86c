/// \file
/// Noise that is the same each time: its own generator and shape, so that it does not depend on the standard library.
#ifndef VELBRIN_SIM_NOISE_H
#define VELBRIN_SIM_NOISE_H

#include <cstdint>

namespace sim {

class Noise
{
public:
    explicit Noise(std::uint32_t seed) : m_state(seed * 2654435761u + 1u) {}

    /// Close to normal, with a root mean square of 1: twelve evenly spread numbers added up.
    double next()
    {
        double sum = -6.0;
        for (int i = 0; i < 12; ++i)
            sum += uniform();
        return sum;
    }

private:
    double uniform()
    {
        m_state = m_state * 1664525u + 1013904223u;
        return m_state / 4294967296.0;
    }

    std::uint32_t m_state;
};

} // namespace sim

#endif
