#include "bodeplot/CurveFilters.h"

#include "bodeplot/RBodeplotPointModel.h"

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
        endHold();
    if (position < 0)
        return;
    const auto index = std::size_t(position);
    m_settling.stop();
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
    m_settling.start(std::max(0, settleTimeMs), this);
    const std::optional<QPointF> untold = m_hold.untoldPoint;
    const int handle = heldHandle();
    return untold && handle >= 0 ? move(handle, *untold) : HandleEdit();
}

HandleEdit CurveFilters::cancel()
{
    const int position = heldRecord();
    if (position < 0 || m_settling.isActive())
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

void CurveFilters::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_settling.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    endHold();
}

CurveFilters::Hold CurveFilters::takeHold()
{
    m_settling.stop();
    return std::exchange(m_hold, {});
}

/// The missed change comes with the next event: it may bring other handles, which must not happen while one is pressed.
void CurveFilters::endHold()
{
    const Hold ended = takeHold();
    if (ended.missedChange)
        QMetaObject::invokeMethod(
            this, [this, source = ended.source] { refresh(source); }, Qt::QueuedConnection);
}

/// In a list that is made anew the held record stays the one that the user edits.
void CurveFilters::keepHeldRecord(FilterRecords &records)
{
    if (!m_hold.isActive())
        return;
    const std::vector<QObject *> &sources = m_filters.sources;
    const auto found = std::ranges::find(sources, m_hold.source);
    const auto position = std::size_t(found - sources.begin());
    if (!m_hold.source || found == sources.end() || !sameKind(records[position], m_hold.record)) {
        takeHold();
        return;
    }
    records[position] = m_hold.record;
    m_hold.missedChange = true;
}

} // namespace tamble::client
