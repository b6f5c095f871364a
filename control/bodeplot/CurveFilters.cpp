#include "bodeplot/CurveFilters.h"

#include "base/ControlLog.h"
#include "bodeplot/filters/RBodeplotFIRFilter.h"
#include "bodeplot/handles/RBodeplotPointModel.h"

#include <QtCore/QDebug>
#include <QtCore/QScopedValueRollback>
#include <QtCore/QVariant>

#include <algorithm>
#include <utility>

namespace tamble::client {

namespace {

bool hasHeader(const QObject &source, const FIRFilterExtended &record)
{
    return QAnyStringView::equal(source.property("header").toString(), QUtf8StringView(record.header));
}

} // namespace

CurveFilters::CurveFilters()
{
    connect(&m_watch, &FilterWatch::filterChanged, this, &CurveFilters::refresh);
    connect(&m_watch, &FilterWatch::filterHeaderChanged, this, &CurveFilters::followHeader);
    connect(&m_watch, &FilterWatch::filterSelectionChanged, this, &CurveFilters::followSelection);
    connect(&m_watch, &FilterWatch::filterDestroyed, this, &CurveFilters::drop);
    connect(&m_holds, &FilterHolds::settled, this, &CurveFilters::refresh);
}

void CurveFilters::setFilters(ConvertedFilters filters)
{
    const QStringList problems = take(std::move(filters));
    for (const QString &problem : problems)
        qDebug().noquote() << problem;
}

QStringList CurveFilters::take(ConvertedFilters filters)
{
    FilterRecords records = std::exchange(filters.records, {});
    m_filters = std::move(filters);
    m_holds.keepIn(records, m_filters.sources);
    QStringList problems = m_set.setRecords(std::move(records));
    for (std::size_t i = 0; i < m_filters.sources.size(); ++i)
        checkSlope(i);
    m_watch.setFilters(m_filters.sources);
    if (const int selected = findSelected(); selected >= 0 && selected != m_selectedRecord) {
        m_selectedRecord = selected;
        m_selectedHandle = -1;
    }
    updateModels();
    Q_EMIT recordChanged(allRecords);
    return problems;
}

void CurveFilters::setAxes(const PlotAxes &axes)
{
    m_set.setAxes(axes);
    updateModels();
}

void CurveFilters::refresh(QObject *source)
{
    if (m_holds.isHeld(source))
        return;
    for (std::size_t i = 0; i < m_filters.sources.size(); ++i) {
        if (m_filters.sources[i] != source)
            continue;
        const FilterRecord said = saidRecord(i);
        if (!m_holds.hears(source, said))
            refreshRecord(i, said);
    }
}

// What the source says, in the form that the set keeps.
FilterRecord CurveFilters::saidRecord(std::size_t position) const
{
    const FilterRecord said = convertedAgain(m_filters, position);
    settleRecord(said);
    return said;
}

void CurveFilters::refreshRecord(std::size_t position, const FilterRecord &record)
{
    const FilterRecord old = m_set.records()[position];
    if (const QString problem = m_set.setRecord(int(position), record); !problem.isEmpty())
        qDebug().noquote() << problem;
    checkSlope(position);
    updateModels();
    if (old.display() != record.display())
        Q_EMIT displayChanged();
    if (!record.hasResponseOf(old))
        Q_EMIT recordChanged(int(position));
}

void CurveFilters::checkSlope(std::size_t position)
{
    if (m_hasToldOfSlope || !m_set.records()[position].hasUnknownSlope())
        return;
    m_hasToldOfSlope = true;
    warnOfPage(
        m_filters.sources[position],
        QStringLiteral("there is no such slope: write RBodeplotSlopeTypeEnum.SLOPE_TWELVE_DB_SLOPE (2) for 12 dB "
                       "per octave, SLOPE_SIX_DB_SLOPE (1) for 6 dB, SLOPE_NULL_SLOPE (0) for none"));
}

void CurveFilters::drop(QObject *source)
{
    const int selected = std::exchange(m_selectedRecord, -1);
    ConvertedFilters kept;
    kept.fromReference = m_filters.fromReference;
    for (std::size_t i = 0; i < m_filters.sources.size(); ++i) {
        if (m_filters.sources[i] == source)
            continue;
        if (int(i) == selected)
            m_selectedRecord = int(kept.sources.size());
        kept.records.push_back(m_set.records()[i]);
        kept.sources.push_back(m_filters.sources[i]);
        kept.places.push_back(m_filters.places[i]);
    }
    take(std::move(kept)); // whose problems are known
}

void CurveFilters::returnHeaders(int evaluatedRecord)
{
    // By index, because a page may answer a header with another list.
    for (std::size_t i = 0; i < m_filters.sources.size(); ++i) {
        if (evaluatedRecord != allRecords && int(i) != evaluatedRecord)
            continue;
        const auto *record = m_set.records()[i].as<FIRFilterExtended>();
        auto *item = record ? qobject_cast<RBodeplotFIRFilter *>(m_filters.sources[i]) : nullptr;
        if (item && !hasHeader(*item, *record))
            item->setProperty("header", QString::fromStdString(record->header));
    }
}

HandleEdit CurveFilters::move(int handle, const QPointF &wanted)
{
    HandleEdit edit = m_set.move(handle, wanted);
    if (FilterHold *hold = edit ? holdOf(handle) : nullptr)
        hold->untoldPoint.reset();
    if (edit && !edit.follows)
        updateModels();
    return edit;
}

void CurveFilters::follow(const HandleEdit &edit)
{
    if (!edit.follows)
        return;
    FilterHold *hold = m_set.follow(edit) ? holdOf(edit.handle) : nullptr;
    if (hold)
        hold->untoldPoint = edit.follows;
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
    if (FilterHold *hold = edit ? holdOf(handle) : nullptr)
        hold->untoldPoint.reset();
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

FilterHold *CurveFilters::holdOf(int handle)
{
    const int record = m_set.recordOf(handle);
    return record < 0 ? nullptr : m_holds.find(m_set.records()[std::size_t(record)], *m_set.relationOf(handle));
}

std::vector<int> CurveFilters::heldHandles() const
{
    std::vector<int> held;
    const std::vector<FilterHandle> &handles = m_set.handles();
    for (const FilterHold &hold : m_holds.all()) {
        const auto found = std::ranges::find_if(handles, [&](const FilterHandle &handle) {
            return handle.relation == hold.relation && m_set.records()[std::size_t(handle.record)] == hold.record;
        });
        if (found != handles.end())
            held.push_back(int(found - handles.begin()));
    }
    return held;
}

void CurveFilters::hold(int handle)
{
    const int position = m_set.recordOf(handle);
    if (position < 0)
        return;
    const auto index = std::size_t(position);
    QObject *source = index < m_filters.sources.size() ? m_filters.sources[index] : nullptr;
    m_holds.begin(source, m_set.records()[index], *m_set.relationOf(handle));
}

HandleEdit CurveFilters::release(int handle, int settleTimeMs)
{
    FilterHold *hold = holdOf(handle);
    if (!hold)
        return {};
    const std::optional<QPointF> untold = hold->untoldPoint;
    const FilterRecord said = hold->source ? saidRecord(std::size_t(m_set.recordOf(handle))) : FilterRecord();
    m_holds.end(*hold, said, settleTimeMs);
    return untold ? move(handle, *untold) : HandleEdit();
}

HandleEdit CurveFilters::cancel(int handle)
{
    FilterHold *hold = holdOf(handle);
    if (!hold)
        return {};
    m_set.setRecord(m_set.recordOf(handle), m_holds.restore(*hold));
    updateModels();
    return m_set.current(handle);
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

void CurveFilters::followHeader(QObject *source)
{
    const auto found = std::ranges::find(m_filters.sources, source);
    if (found == m_filters.sources.end())
        return;
    const FilterRecord record = m_set.records()[std::size_t(found - m_filters.sources.begin())];
    const auto *fir = record.as<FIRFilterExtended>();
    if (fir && !hasHeader(*source, *fir))
        refresh(source);
}

void CurveFilters::followSelection(QObject *source)
{
    if (source == m_markedSource)
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
    // By index, because a page may answer a selection with another list.
    for (std::size_t i = 0; i < m_filters.sources.size(); ++i) {
        QObject *source = m_filters.sources[i];
        const QScopedValueRollback<const QObject *> writing(m_markedSource, source);
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
    QList<QObject *> old;
    if (changed) {
        old.swap(m_pointModels);
        for (std::size_t i = 0; i < handles.size(); ++i)
            m_pointModels.append(new RBodeplotPointModel(this));
        m_modelledHandles = handles;
    }
    if (changed || m_set.recordOf(m_selectedHandle) != m_selectedRecord)
        m_selectedHandle = -1;
    // The models' notifications may lead to other handles.
    const QList<QObject *> models = m_pointModels;
    for (std::size_t i = 0; i < handles.size() && i < std::size_t(models.size()); ++i) {
        const bool selected = m_selectedHandle < 0 ? handles[i].record == m_selectedRecord : int(i) == m_selectedHandle;
        auto *model = static_cast<RBodeplotPointModel *>(models[qsizetype(i)]);
        model->update(handles[i], int(i), selected);
    }
    if (changed)
        Q_EMIT pointModelsChanged();
    for (QObject *model : std::as_const(old))
        model->deleteLater(); // after who was told lets go of them
}

} // namespace tamble::client
