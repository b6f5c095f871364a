#include "BlockClock.h"

BlockClock::Clock::time_point BlockClock::nextDue() const
{
    return m_begin + std::chrono::duration_cast<Clock::duration>(double(m_taken + 1) * m_blockLength);
}

int BlockClock::takeDue(Clock::time_point now)
{
    if (now - nextDue() > longestDelay) {
        restart(now);
        return 1;
    }
    int due = 0;
    for (; nextDue() <= now; ++m_taken)
        ++due;
    return due;
}

void BlockClock::restart(Clock::time_point now)
{
    m_begin = now;
    m_taken = 0;
}
