#include "meter/BarRedraws.h"

#include "meter/RMeterBase.h"

#include <QtCore/QTimer>

#include <utility>

namespace tamble::client {

BarRedraws &BarRedraws::instance()
{
    static BarRedraws bars;
    return bars;
}

BarRedraws::BarRedraws()
{
    connect(&RMeterBase::sharedTimer(), &QTimer::timeout, this, &BarRedraws::onTick);
}

void BarRedraws::rise(WaitingBar &bar)
{
    m_risen = true;
    bar.m_place.unlink();
    bar.draw();
    drawWaiting();
}

void BarRedraws::fall(WaitingBar &bar)
{
    if (!m_riseExpected)
        bar.draw();
    else if (!bar.m_place.is_linked())
        m_waiting.push_back(bar);
}

// Meters tick before and after this, in the order in which they were made; both come right.
void BarRedraws::onTick()
{
    m_riseExpected = std::exchange(m_risen, false);
    if (!m_riseExpected)
        drawWaiting();
}

void BarRedraws::drawWaiting()
{
    while (!m_waiting.empty()) {
        WaitingBar &bar = m_waiting.front();
        m_waiting.pop_front();
        bar.draw();
    }
}

} // namespace tamble::client
