#pragma once

#include <QtCore/qglobal.h>

#include <optional>

namespace tamble::client {

/// Lets one event pass per interval. Times are in milliseconds of any steady clock.
class RateLimit
{
public:
    explicit constexpr RateLimit(qint64 intervalMs)
        : m_interval(intervalMs)
    {}

    /// Whether an event at `nowMs` may pass; one that may starts the next interval.
    bool pass(qint64 nowMs)
    {
        if (remaining(nowMs) > 0)
            return false;
        m_last = nowMs;
        return true;
    }

    /// Time until the next event may pass, 0 when it may at once.
    qint64 remaining(qint64 nowMs) const { return m_last ? qMax<qint64>(0, *m_last + m_interval - nowMs) : 0; }

private:
    qint64 m_interval;
    std::optional<qint64> m_last;
};

} // namespace tamble::client
