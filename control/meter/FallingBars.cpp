#include "meter/FallingBars.h"

#include "meter/RMeterBase.h"

#include <QtCore/QTimer>

#include <utility>

namespace tamble::client {

FallingBars &FallingBars::instance()
{
    static FallingBars bars;
    return bars;
}

FallingBars::FallingBars()
{
    connect(&RMeterBase::sharedTimer(), &QTimer::timeout, this, &FallingBars::onTick);
}

void FallingBars::rise(WaitingBar &bar)
{
    m_risen = true;
    bar.m_place.unlink();
    bar.draw();
    drawWaiting();
}

void FallingBars::fall(WaitingBar &bar)
{
    if (!m_riseExpected)
        bar.draw();
    else if (!bar.m_place.is_linked())
        m_waiting.push_back(bar);
}

// Meters tick before and after this, in the order in which they were made; both come right.
void FallingBars::onTick()
{
    m_riseExpected = std::exchange(m_risen, false);
    if (!m_riseExpected)
        drawWaiting();
}

void FallingBars::drawWaiting()
{
    while (!m_waiting.empty()) {
        WaitingBar &bar = m_waiting.front();
        m_waiting.pop_front();
        bar.draw();
    }
}

} // namespace tamble::client
