#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

/// Numbers that depend on the seed alone, on every machine.
class Random
{
public:
    explicit Random(std::uint32_t seed)
        : m_engine(seed)
    {}

    /// 0 to count - 1; 0 for a count of 0.
    std::size_t below(std::size_t count) { return count == 0 ? 0 : m_engine() % count; }
    bool oneIn(std::size_t count) { return below(count) == 0; }
    template <typename List>
    const auto &oneOf(const List &list)
    {
        return list[below(std::size(list))];
    }

private:
    std::mt19937 m_engine;
};
