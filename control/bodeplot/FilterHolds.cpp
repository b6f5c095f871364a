#include "bodeplot/FilterHolds.h"

#include <QtCore/QTimerEvent>

#include <algorithm>
#include <utility>

namespace tamble::client {

namespace {

/// False when the list has no place for the record.
bool keepRecord(const QObject *source, const FilterRecord &record, FilterRecords &records,
                const std::vector<QObject *> &sources)
{
    const auto found = std::ranges::find(sources, source);
    const auto position = std::size_t(found - sources.begin());
    if (!source || found == sources.end() || !records[position].isOfKind(record))
        return false;
    records[position] = record;
    return true;
}

bool isSame(const FilterRecord &a, const FilterRecord &b)
{
    return a.display() == b.display() && a.hasResponseOf(b);
}

} // namespace

FilterHold *FilterHolds::find(const FilterRecord &record, HandleRelation relation)
{
    const auto found = std::ranges::find_if(
        m_holds, [&](const FilterHold &hold) { return hold.record == record && hold.relation == relation; });
    return found == m_holds.end() ? nullptr : &*found;
}

void FilterHolds::begin(QObject *source, const FilterRecord &record, HandleRelation relation)
{
    std::erase_if(m_settling, [&](const Settling &settling) { return settling.record == record; });
    std::erase_if(m_holds, [&](const FilterHold &hold) { return hold.record == record && hold.relation == relation; });
    m_holds.push_back({source, record, relation, record.copy(), std::nullopt});
}

FilterRecord FilterHolds::restore(FilterHold &hold)
{
    const FilterRecord edited = hold.record;
    const FilterRecord restored = hold.before.copy();
    hold.untoldPoint.reset();
    for (FilterHold &other : m_holds) {
        if (other.record == edited)
            other.record = restored;
    }
    return restored;
}

void FilterHolds::end(const FilterHold &hold, const FilterRecord &said, int settleTimeMs)
{
    const auto position = &hold - m_holds.data();
    if (hold.source) { // ready-made records keep what they were given
        Settling &settling = m_settling.emplace_back(Settling{hold.source, hold.record, isSame(said, hold.record), {}});
        settling.timer.start(std::max(0, settleTimeMs), this);
    }
    m_holds.erase(m_holds.begin() + position);
}

bool FilterHolds::isHeld(const QObject *source) const
{
    return std::ranges::find(m_holds, source, &FilterHold::source) != m_holds.end();
}

bool FilterHolds::hears(const QObject *source, const FilterRecord &said)
{
    std::erase_if(m_settling, [&](Settling &settling) {
        if (settling.source != source)
            return false;
        const bool isSaid = isSame(said, settling.record);
        return !std::exchange(settling.isSaid, isSaid) && isSaid;
    });
    return std::ranges::find(m_settling, source, &Settling::source) != m_settling.end();
}

void FilterHolds::keepIn(FilterRecords &records, const std::vector<QObject *> &sources)
{
    const auto hasNoPlace = [&](const auto &edited) {
        return !keepRecord(edited.source, edited.record, records, sources);
    };
    std::erase_if(m_holds, hasNoPlace);
    std::erase_if(m_settling, hasNoPlace);
}

void FilterHolds::timerEvent(QTimerEvent *event)
{
    const auto found = std::ranges::find_if(
        m_settling, [event](const Settling &settling) { return settling.timer.timerId() == event->timerId(); });
    if (found == m_settling.end()) {
        QObject::timerEvent(event);
        return;
    }
    QObject *source = found->source;
    m_settling.erase(found);
    Q_EMIT settled(source);
}

} // namespace tamble::client
