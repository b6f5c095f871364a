#include "bodeplot/CurveFilters.h"

#include "bodeplot/RBodeplotFIRFilter.h"
#include "bodeplot/RBodeplotPointModel.h"

#include <QtCore/QDebug>
#include <QtCore/QScopedValueRollback>
#include <QtCore/QTimerEvent>
#include <QtCore/QVariant>

#include <algorithm>
#include <typeinfo>
#include <utility>

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

bool sameDisplay(const FilterRecord &a, const FilterRecord &b)
{
    const RecordDisplay first = recordDisplay(a.data());
    const RecordDisplay second = recordDisplay(b.data());
    return first.visible == second.visible && first.bypass == second.bypass;
}

} // namespace

CurveFilters::CurveFilters()
{
    connect(&m_watch, &FilterWatch::filterChanged, this, &CurveFilters::refresh);
    connect(&m_watch, &FilterWatch::filterSelectionChanged, this, &CurveFilters::followSelection);
    connect(&m_watch, &FilterWatch::filterDestroyed, this, &CurveFilters::drop);
}

void CurveFilters::setFilters(const ConvertedFilters &filters)
{
    m_filters.sources = filters.sources;
    m_filters.fromReference = filters.fromReference;
    FilterRecords records = filters.records;
    keepHeldRecord(records, m_filters.sources);
    const QStringList problems = m_set.setRecords(std::move(records));
    for (const QString &problem : problems)
        qDebug().noquote() << problem;
    m_watch.setFilters(m_filters.sources);
    if (const int selected = findSelected(); selected >= 0 && selected != m_selectedRecord) {
        m_selectedRecord = selected;
        m_selectedHandle = -1;
    }
    updateModels();
    Q_EMIT recordChanged(allRecords);
}

void CurveFilters::setFrame(const HandleFrame &frame)
{
    m_set.setFrame(frame);
    updateModels();
}

void CurveFilters::refresh(QObject *source)
{
    if (m_writesToSources)
        return;
    if (m_hold.isActive() && m_hold.source == source) {
        m_hold.missedChange = true;
        return;
    }
    for (std::size_t i = 0; i < m_filters.sources.size(); ++i) {
        if (m_filters.sources[i] == source)
            refreshRecord(i);
    }
}

void CurveFilters::refreshRecord(std::size_t position)
{
    const FilterRecord old = m_set.records()[position];
    const FilterRecord record = convertedAgain(m_filters, position);
    m_set.setRecord(int(position), record);
    updateModels();
    if (!sameDisplay(old, record))
        Q_EMIT displayChanged();
    if (!sameResponse(old.data(), record.data()))
        Q_EMIT recordChanged(int(position));
}

void CurveFilters::drop(QObject *source)
{
    FilterRecords records;
    std::vector<QObject *> sources;
    for (std::size_t i = 0; i < m_filters.sources.size(); ++i) {
        if (m_filters.sources[i] == source)
            continue;
        records.push_back(m_set.records()[i]);
        sources.push_back(m_filters.sources[i]);
    }
    if (m_hold.source == source)
        endHold();
    m_filters.sources = std::move(sources);
    m_set.setRecords(std::move(records));
    updateModels();
    Q_EMIT recordChanged(allRecords);
}

void CurveFilters::returnHeaders()
{
    const QScopedValueRollback writing(m_writesToSources, true);
    // By index, because a page may answer a header with another list.
    for (std::size_t i = 0; i < m_filters.sources.size(); ++i) {
        const auto *record = dynamic_cast<const FIRFilterExtended *>(m_set.records()[i].data());
        auto *item = record ? qobject_cast<RBodeplotFIRFilter *>(m_filters.sources[i]) : nullptr;
        if (!item)
            continue;
        const QString header = QString::fromStdString(record->header);
        if (item->property("header").toString() != header)
            item->setProperty("header", header);
    }
}

HandleEdit CurveFilters::move(int handle, const QPointF &wanted)
{
    HandleEdit edit = m_set.move(handle, wanted);
    if (edit)
        updateModels();
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
}

void CurveFilters::release(int settleTimeMs)
{
    if (m_hold.isActive())
        m_settling.start(std::max(0, settleTimeMs), this);
}

HandleEdit CurveFilters::cancel()
{
    const int position = heldRecord();
    if (position < 0 || m_settling.isActive())
        return {};
    m_hold.record = copyRecord(m_hold.before.data());
    m_set.setRecord(position, m_hold.record);
    updateModels();
    const auto isHeld = [&](const FilterHandle &handle) {
        return handle.record == position && handle.relation == m_hold.relation;
    };
    const auto found = std::ranges::find_if(m_set.handles(), isHeld);
    return m_set.current(int(found - m_set.handles().begin()));
}

int CurveFilters::heldRecord() const
{
    const auto found = std::ranges::find(m_set.records(), m_hold.record);
    return m_hold.isActive() && found != m_set.records().end() ? int(found - m_set.records().begin()) : -1;
}

void CurveFilters::timerEvent(QTimerEvent *event)
{
    if (event->timerId() != m_settling.timerId()) {
        QObject::timerEvent(event);
        return;
    }
    endHold();
}

void CurveFilters::endHold()
{
    m_settling.stop();
    const Hold ended = std::exchange(m_hold, {});
    if (ended.missedChange)
        refresh(ended.source);
}

/// In a list that is made anew the held record stays the one that the user edits.
void CurveFilters::keepHeldRecord(FilterRecords &records, const std::vector<QObject *> &sources)
{
    if (!m_hold.isActive())
        return;
    const auto found = std::ranges::find(sources, m_hold.source);
    const auto position = std::size_t(found - sources.begin());
    if (!m_hold.source || found == sources.end() || !sameKind(records[position], m_hold.record)) {
        m_settling.stop();
        m_hold = {};
        return;
    }
    records[position] = m_hold.record;
    m_hold.missedChange = true;
}

void CurveFilters::select(int handle)
{
    m_previouslySelectedRecord = std::exchange(m_selectedRecord, m_set.recordOf(handle));
    m_selectedHandle = m_selectedRecord < 0 ? -1 : handle;
    for (qsizetype i = 0; i < m_pointModels.size(); ++i)
        static_cast<RBodeplotPointModel *>(m_pointModels[i])->setSelected(int(i) == handle);
    markSelected();
    if (m_previouslySelectedRecord != m_selectedRecord)
        Q_EMIT displayChanged();
}

void CurveFilters::followSelection(QObject *source)
{
    if (m_writesToSources)
        return;
    const auto found = std::ranges::find(m_filters.sources, source);
    if (found == m_filters.sources.end())
        return;
    const int record = int(found - m_filters.sources.begin());
    if (source->property("selected").toBool())
        select(m_set.firstHandleOf(record));
    else if (record == m_selectedRecord)
        select(-1);
}

int CurveFilters::findSelected() const
{
    const auto found = std::ranges::find_if(
        m_filters.sources, [](const QObject *source) { return source->property("selected").toBool(); });
    return found == m_filters.sources.end() ? -1 : int(found - m_filters.sources.begin());
}

void CurveFilters::markSelected()
{
    const QScopedValueRollback writing(m_writesToSources, true);
    for (std::size_t i = 0; i < m_filters.sources.size(); ++i) {
        QObject *source = m_filters.sources[i];
        const bool isSelected = int(i) == m_selectedRecord;
        const QVariant selected = source->property("selected");
        if (selected.isValid() && selected.toBool() != isSelected)
            source->setProperty("selected", isSelected);
    }
}

void CurveFilters::updateModels()
{
    const std::vector<FilterHandle> &handles = m_set.handles();
    const bool changed = !sameHandleKinds(handles, m_modelledHandles);
    if (changed) {
        for (QObject *model : std::as_const(m_pointModels))
            model->deleteLater(); // a delegate may still read it
        m_pointModels.clear();
        for (const FilterHandle &handle : handles)
            m_pointModels.append(new RBodeplotPointModel(handle.relation, this));
        m_modelledHandles = handles;
        m_selectedHandle = -1;
    }
    // The models' notifications may lead to other handles.
    const QList<QObject *> models = m_pointModels;
    for (std::size_t i = 0; i < handles.size() && i < std::size_t(models.size()); ++i) {
        const bool selected = m_selectedHandle < 0 ? handles[i].record == m_selectedRecord : int(i) == m_selectedHandle;
        auto *model = static_cast<RBodeplotPointModel *>(models[qsizetype(i)]);
        model->update(handles[i], int(i), selected);
    }
    if (changed)
        Q_EMIT pointModelsChanged();
}

} // namespace tamble::client
