#include "bodeplot/CurveFilters.h"

#include "bodeplot/handles/RBodeplotPointModel.h"

#include <QtCore/QTimerEvent>

#include <algorithm>
#include <typeinfo>
#include <utility>

// What gestures make of the filters of a curve.

namespace tamble::client {

namespace {

bool sameKind(const FilterRecord &a, const FilterRecord &b)
{
    if (!a || !b)
        return false;
    const auto &first = *a;
    const auto &second = *b;
    return typeid(first) == typeid(second);
}

} // namespace

HandleEdit CurveFilters::move(int handle, const QPointF &wanted)
{
    HandleEdit edit = m_set.move(handle, wanted);
    if (edit)
        m_hold.untoldPoint.reset();
    if (edit && !edit.follows)
        updateModels();
    return edit;
}

void CurveFilters::follow(const HandleEdit &edit)
{
    if (!edit.follows)
        return;
    if (m_set.follow(edit) && edit.record == heldRecord())
        m_hold.untoldPoint = edit.follows;
    // The partner goes first, and both before their gain.
    for (const int handle : {m_set.partnerOf(edit.handle), edit.handle}) {
        if (m_set.recordOf(handle) >= 0 && handle < m_pointModels.size())
            static_cast<RBodeplotPointModel *>(m_pointModels[handle])
                ->setPoint(m_set.handles()[std::size_t(handle)].point);
    }
    updateModels();
}

HandleEdit CurveFilters::level(int handle)
{
    HandleEdit edit = m_set.level(handle);
    if (edit) {
        m_hold.untoldPoint.reset();
        updateModels();
    }
    return edit;
}

HandleEdit CurveFilters::changeQuality(int handle, double baseQuality, double change)
{
    HandleEdit edit = m_set.changeQuality(handle, baseQuality, change);
    if (edit)
        updateModels();
    return edit;
}

void CurveFilters::hold(int handle)
{
    const int position = m_set.recordOf(handle);
    if (position != heldRecord())
        endHold(0);
    if (position < 0)
        return;
    const auto index = std::size_t(position);
    std::erase_if(m_settling, [&](const Settling &settling) { return settling.record == m_set.records()[index]; });
    m_hold.relation = m_set.handles()[std::size_t(handle)].relation;
    m_hold.source = index < m_filters.sources.size() ? m_filters.sources[index] : nullptr;
    m_hold.record = m_set.records()[index];
    m_hold.before = copyRecord(m_hold.record.data());
    m_hold.untoldPoint.reset();
}

HandleEdit CurveFilters::release(int settleTimeMs)
{
    if (!m_hold.isActive())
        return {};
    const std::optional<QPointF> untold = m_hold.untoldPoint;
    const int handle = heldHandle();
    endHold(settleTimeMs);
    return untold && handle >= 0 ? move(handle, *untold) : HandleEdit();
}

HandleEdit CurveFilters::cancel()
{
    const int position = heldRecord();
    if (position < 0)
        return {};
    m_hold.record = copyRecord(m_hold.before.data());
    m_hold.untoldPoint.reset();
    m_set.setRecord(position, m_hold.record);
    updateModels();
    return m_set.current(heldHandle());
}

int CurveFilters::heldRecord() const
{
    const auto found = std::ranges::find(m_set.records(), m_hold.record);
    return m_hold.isActive() && found != m_set.records().end() ? int(found - m_set.records().begin()) : -1;
}

int CurveFilters::heldHandle() const
{
    const auto isHeld = [this, record = heldRecord()](const FilterHandle &handle) {
        return handle.record == record && handle.relation == m_hold.relation;
    };
    const auto found = std::ranges::find_if(m_set.handles(), isHeld);
    return found == m_set.handles().end() ? -1 : int(found - m_set.handles().begin());
}

void CurveFilters::endHold(int settleTimeMs)
{
    const Hold ended = std::exchange(m_hold, {});
    if (!ended.source)
        return; // ready-made records keep what they were given
    Settling &settling = m_settling.emplace_back(Settling{{ended.source, ended.record}, {}});
    settling.timer.start(std::max(0, settleTimeMs), this);
}

void CurveFilters::timerEvent(QTimerEvent *event)
{
    const auto found = std::ranges::find_if(
        m_settling, [event](const Settling &settling) { return settling.timer.timerId() == event->timerId(); });
    if (found == m_settling.end()) {
        QObject::timerEvent(event);
        return;
    }
    QObject *source = found->source;
    m_settling.erase(found);
    refresh(source);
}

bool CurveFilters::isEdited(const QObject *source) const
{
    const bool isHeld = m_hold.isActive() && m_hold.source == source;
    return isHeld || std::ranges::find(m_settling, source, &Settling::source) != m_settling.end();
}

/// Puts an edited record in its place in a list that is made anew; false when that has none for it.
bool CurveFilters::keepRecord(const Edited &edited, FilterRecords &records) const
{
    const std::vector<QObject *> &sources = m_filters.sources;
    const auto found = std::ranges::find(sources, edited.source);
    const auto position = std::size_t(found - sources.begin());
    if (!edited.source || found == sources.end() || !sameKind(records[position], edited.record))
        return false;
    records[position] = edited.record;
    return true;
}

void CurveFilters::keepEditedRecords(FilterRecords &records)
{
    if (!keepRecord(m_hold, records))
        m_hold = {};
    std::erase_if(m_settling, [&](const Settling &settling) { return !keepRecord(settling, records); });
}

} // namespace tamble::client
