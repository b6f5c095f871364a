#pragma once

#include <random>

/// Random numbers that a seed repeats, on every system: the library's distributions differ between systems.
class RandomSource
{
public:
    explicit RandomSource(unsigned seed)
        : m_engine(seed)
    {}

    /// From 0 up to, and without, 1.
    double unit() { return double(m_engine()) / 4294967296.0; }
    /// From `least` up to, and without, `most`.
    double between(double least, double most) { return least + (most - least) * unit(); }
    /// From 0 to `count` - 1; 0 for a count below 1.
    int below(int count) { return int(count * unit()); }
    /// True with a probability from 0 to 1.
    bool chance(double probability) { return unit() < probability; }

private:
    std::mt19937 m_engine; // 32 bits
};
