#include "EventQueue.h"

#include <algorithm>
#include <utility>

void EventQueue::after(qint64 delay, Event event)
{
    m_events.emplace(m_now + std::max<qint64>(0, delay), std::move(event));
}

void EventQueue::advance(qint64 ms)
{
    const qint64 end = m_now + std::max<qint64>(0, ms);
    while (!m_events.empty() && m_events.begin()->first <= end) {
        const auto next = m_events.extract(m_events.begin());
        m_now = next.key();
        next.mapped()();
    }
    // An event may have moved the clock further.
    m_now = std::max(m_now, end);
}
