#pragma once

#include <QtCore/QtGlobal>

#include <functional>
#include <map>

/// What is going to happen, and the clock by which it does. Nothing happens but within `advance`.
class EventQueue
{
public:
    using Event = std::function<void()>;

    /// Time in ms since the beginning.
    qint64 now() const { return m_now; }
    bool isEmpty() const { return m_events.empty(); }
    /// Time in ms until the next event; 0 when there is none.
    qint64 untilNext() const { return isEmpty() ? 0 : m_events.begin()->first - m_now; }

    /// Lets `event` happen in `delay` ms, behind those that are due at the same time. A delay below 0 counts as 0.
    void after(qint64 delay, Event event);
    /// Moves the clock by `ms` and lets happen what falls due on the way, each at its own time. What events add counts,
    /// too.
    void advance(qint64 ms);

private:
    std::multimap<qint64, Event> m_events;
    qint64 m_now = 0;
};
