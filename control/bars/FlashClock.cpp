#include "bars/FlashClock.h"

#include "bars/FlashPhase.h"

#include <QtCore/QDateTime>

#include <utility>

namespace tamble::client {

FlashClock &FlashClock::instance()
{
    static FlashClock clock;
    return clock;
}

void FlashClock::follow()
{
    if (++m_followers == 1)
        tick();
}

void FlashClock::letGo()
{
    if (--m_followers == 0)
        m_timer.stop();
}

void FlashClock::timerEvent(QTimerEvent *)
{
    tick();
}

// Anew each time, as the clock may be set and a timer be late.
void FlashClock::tick()
{
    const qint64 now = QDateTime::currentMSecsSinceEpoch();
    m_timer.start(nextFlashIn(now), Qt::PreciseTimer, this);
    const bool isLit = isFlashLit(now);
    if (std::exchange(m_isLit, isLit) != isLit)
        Q_EMIT litChanged();
}

} // namespace tamble::client
