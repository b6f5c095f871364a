#pragma once

#include <chrono>

/// Says when blocks of equal length are due. Every due time is computed from the beginning, so errors do not add up.
class BlockClock
{
public:
    using Clock = std::chrono::steady_clock;

    /// After a delay longer than this (a suspended computer) the missed blocks are left out instead of hurried through.
    static constexpr std::chrono::milliseconds longestDelay{500};

    BlockClock(std::chrono::duration<double> blockLength, Clock::time_point now)
        : m_blockLength(blockLength)
        , m_begin(now)
    {}

    /// When the next block is due.
    Clock::time_point nextDue() const;
    /// Takes the blocks that are due at `now` off and returns their number.
    int takeDue(Clock::time_point now);
    /// Begins anew: the first block is due one block length after `now`.
    void restart(Clock::time_point now);

private:
    std::chrono::duration<double> m_blockLength;
    Clock::time_point m_begin;
    long long m_taken = 0;
};
