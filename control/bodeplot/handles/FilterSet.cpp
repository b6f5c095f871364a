#include "bodeplot/handles/FilterSet.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace tamble::client {

using namespace tamble::common;

namespace {

bool isInWidth(double x)
{
    return x >= 0.0 && x <= 1.0;
}

HandleEdit refused(const QString &problem = {})
{
    HandleEdit edit;
    edit.problem = problem;
    return edit;
}

QString problemText(HandleProblem problem, std::size_t position)
{
    switch (problem) {
    case HandleProblem::None:
        return {};
    case HandleProblem::NullRecord:
        return QStringLiteral(
                   "RBodeplotCurve::onCalculationItemsChanged() skipping EQ filterPoint at index %1 (pointer "
                   "is null)")
            .arg(position);
    case HandleProblem::AsymmetricTypeOfPlainBand:
        return QStringLiteral("RBodeplotCurve::onCalculationItemsChanged() filterPoint at index %1 is of EQType "
                              "asymmetric but class type is not AsymmetricEqFilterExtended")
            .arg(position);
    case HandleProblem::UnsupportedFirType:
        return QStringLiteral("Firtype not supported");
    case HandleProblem::UnknownRecord:
        return QStringLiteral("RBodeplotCurve::onCalculationItemsChanged() skipping CalculationItem on position %1 "
                              "reason: not an EqFilter / XOverFilter / FIRFilter / AsymEq")
            .arg(position);
    }
    return {};
}

HandleProblem problemOf(const FilterRecord &record)
{
    std::vector<FilterHandle> handles;
    return appendHandles(record.data(), 0, handles);
}

} // namespace

QStringList FilterSet::setRecords(FilterRecords records)
{
    m_records = std::move(records);
    for (const FilterRecord &record : m_records) {
        if (record)
            settleRecord(*record);
    }
    return makeHandles();
}

QString FilterSet::setRecord(int position, FilterRecord record)
{
    const auto index = std::size_t(position);
    if (record)
        settleRecord(*record);
    const HandleProblem before = problemOf(m_records.at(index));
    const HandleProblem now = problemOf(record);
    m_records[index] = std::move(record);
    makeHandles();
    return now != before ? problemText(now, index) : QString();
}

void FilterSet::setAxes(const PlotAxes &axes)
{
    m_axes = axes;
    placeHandles();
}

int FilterSet::recordOf(int handle) const
{
    return handle >= 0 && std::size_t(handle) < m_handles.size() ? m_handles[std::size_t(handle)].record : -1;
}

std::optional<HandleRelation> FilterSet::relationOf(int handle) const
{
    if (recordOf(handle) < 0)
        return std::nullopt;
    return m_handles[std::size_t(handle)].relation;
}

int FilterSet::firstHandleOf(int record) const
{
    const auto found = std::ranges::find(m_handles, record, &FilterHandle::record);
    return found == m_handles.end() ? -1 : int(found - m_handles.begin());
}

int FilterSet::partnerOf(int handle) const
{
    const std::optional<HandleRelation> relation = relationOf(handle);
    if (!relation || !isAsymmetric(*relation))
        return -1;
    const int partner = *relation == HandleRelation::AsymmetricSecond ? handle - 1 : handle + 1;
    return recordOf(partner) == recordOf(handle) ? partner : -1;
}

HandleEdit FilterSet::editOf(const FilterHandle &handle) const
{
    return {.record = handle.record,
            .handle = int(&handle - m_handles.data()),
            .relation = handle.relation,
            .frequencyHz = handle.frequencyHz,
            .gainDb = handle.gainDb,
            .quality = handle.quality,
            .follows = {},
            .problem = {}};
}

HandleEdit FilterSet::current(int handle) const
{
    return recordOf(handle) < 0 ? HandleEdit() : editOf(m_handles[std::size_t(handle)]);
}

QStringList FilterSet::makeHandles()
{
    QStringList problems;
    m_handles.clear();
    for (std::size_t i = 0; i < m_records.size(); ++i) {
        const HandleProblem problem = appendHandles(m_records[i].data(), int(i), m_handles);
        if (problem != HandleProblem::None)
            problems.append(problemText(problem, i));
    }
    placeHandles();
    return problems;
}

void FilterSet::placeHandles()
{
    for (FilterHandle &handle : m_handles)
        handle.point = handlePoint(handle, m_axes);
}

QString FilterSet::indexProblem(const char *method, int handle) const
{
    const auto text = [method](const char *list, int value, std::size_t count) {
        return QStringLiteral("RBodeplotCurve::%1() index out of range (%2); value %3 not between 0 and %4")
            .arg(QLatin1String(method), QLatin1String(list))
            .arg(value)
            .arg(qsizetype(count) - 1);
    };
    if (handle < 0 || std::size_t(handle) >= m_handles.size())
        return text("filterPointModels_", handle, m_handles.size());
    const int record = m_handles[std::size_t(handle)].record;
    if (record < 0 || std::size_t(record) >= m_records.size())
        return text("calculationItemsStdVector_", record, m_records.size());
    return {};
}

HandleEdit FilterSet::move(int handle, const QPointF &wanted)
{
    if (const QString problem = indexProblem("onUserMoveFilterPoint", handle); !problem.isEmpty())
        return refused(problem);
    if (!std::isfinite(wanted.x()) || !std::isfinite(wanted.y()))
        return refused();

    const QPointF limited(wanted.x(), limitedHandleY(wanted.y(), m_axes));
    FilterHandle &moved = m_handles[std::size_t(handle)];
    CalculationItem *record = m_records[std::size_t(moved.record)].data();
    if (auto *eq = dynamic_cast<EqFilter *>(record))
        return moveEq(moved, *eq, limited);
    if (auto *xOver = dynamic_cast<XOverFilter *>(record))
        return moveXOver(moved, *xOver, limited);
    if (auto *fir = dynamic_cast<FIRFilter *>(record))
        return moveFir(handle, *fir, limited);
    if (auto *asymmetric = dynamic_cast<AsymmetricEqFilter *>(record))
        return moveAsymmetric(handle, *asymmetric, limited);
    return refused();
}

HandleEdit FilterSet::moveEq(FilterHandle &handle, EqFilter &record, const QPointF &wanted) const
{
    // A parameter that the drag does not move keeps its value, which a handle outside the frame could not tell.
    if (handle.motion != HandleMotion::Vertical) {
        handle.point.setX(wanted.x());
        record.freq = m_axes.x.valueAt(wanted.x());
    }
    if (handle.motion != HandleMotion::Horizontal) {
        handle.point.setY(wanted.y());
        record.gain = m_axes.y.valueAt(1.0 - wanted.y());
    }
    handle.frequencyHz = record.freq;
    handle.gainDb = record.gain;
    return editOf(handle);
}

HandleEdit FilterSet::moveXOver(FilterHandle &handle, XOverFilter &record, const QPointF &wanted) const
{
    handle.point.setX(wanted.x());
    record.freq = m_axes.x.valueAt(wanted.x());
    handle.frequencyHz = record.freq;
    return editOf(handle);
}

HandleEdit FilterSet::moveFir(int index, FIRFilter &record, const QPointF &wanted)
{
    const auto problem = [index](const QString &text) {
        return refused(QStringLiteral("RBodeplotCurve::onUserMoveFilterPoint() ") + text.arg(index));
    };
    FilterHandle &handle = m_handles[std::size_t(index)];
    const bool highPass = handle.relation == HandleRelation::FirHighPass;
    if (!highPass && handle.relation != HandleRelation::FirLowPass)
        return problem(QStringLiteral("wrong relation for graphical filter point at index %1 with relation ") +
                       relationText(handle.relation));

    double x = wanted.x();
    if (record.type % 3 == 2) { // band pass
        const int partner = highPass ? index + 1 : index - 1;
        if (recordOf(partner) != handle.record)
            return problem(highPass ? QStringLiteral("filterPointModelLP at index %1 is nullptr")
                                    : QStringLiteral("filterPointModelHP at index %1 is nullptr"));
        const double limit = m_handles[std::size_t(partner)].point.x();
        x = highPass ? std::min(x, limit - firHandleDistance) : std::max(x, limit + firHandleDistance);
        x = std::clamp(x, 0.0, 1.0); // a partner outside the frame does not pull this handle out as well
    }
    handle.point.setX(x);
    handle.frequencyHz = m_axes.x.valueAt(x);
    (highPass ? record.freqHP : record.freqLP) = handle.frequencyHz;
    return editOf(handle);
}

HandleEdit FilterSet::moveAsymmetric(int index, AsymmetricEqFilter &record, const QPointF &wanted)
{
    FilterHandle &handle = m_handles[std::size_t(index)];
    double &frequency = handle.relation == HandleRelation::AsymmetricSecond ? record.freq2 : record.freq;
    if (isInWidth(handle.point.x()))
        frequency = m_axes.x.valueAt(handle.point.x());
    handle.frequencyHz = frequency;
    HandleEdit edit = editOf(handle);
    edit.follows = wanted;
    return edit;
}

bool FilterSet::follow(const HandleEdit &edit)
{
    if (!edit.follows || recordOf(edit.handle) != edit.record || relationOf(edit.handle) != edit.relation)
        return false;
    auto *record = dynamic_cast<AsymmetricEqFilter *>(m_records[std::size_t(edit.record)].data());
    if (!record)
        return false;
    FilterHandle &handle = m_handles[std::size_t(edit.handle)];
    record->gain = m_axes.y.valueAt(1.0 - edit.follows->y());
    handle.gainDb = record->gain;
    if (const int partner = partnerOf(edit.handle); partner >= 0) {
        FilterHandle &other = m_handles[std::size_t(partner)];
        other.point.setY(edit.follows->y());
        other.gainDb = record->gain;
    }
    return std::exchange(handle.point, *edit.follows) != *edit.follows;
}

HandleEdit FilterSet::level(int handle)
{
    const int position = recordOf(handle);
    if (position < 0 || m_handles[std::size_t(handle)].motion == HandleMotion::Horizontal)
        return refused();
    CalculationItem *record = m_records[std::size_t(position)].data();
    if (auto *eq = dynamic_cast<EqFilter *>(record))
        eq->gain = 0.0;
    else if (auto *asymmetric = dynamic_cast<AsymmetricEqFilter *>(record))
        asymmetric->gain = 0.0;
    for (FilterHandle &levelled : m_handles) {
        if (levelled.record != position)
            continue;
        levelled.gainDb = 0.0;
        levelled.point.setY(handlePoint(levelled, m_axes).y());
    }
    return current(handle);
}

HandleEdit FilterSet::changeQuality(int handle, double baseQuality, double change)
{
    if (const QString problem = indexProblem("onUserChangeFilterPointQuality", handle); !problem.isEmpty())
        return refused(problem);

    FilterHandle &changed = m_handles[std::size_t(handle)];
    CalculationItem *record = m_records[std::size_t(changed.record)].data();
    if (auto *eq = dynamic_cast<EqFilter *>(record)) {
        const std::optional<double> limit = qualityLimit(eq->type, eq->slope);
        if (!limit)
            return refused();
        eq->quality = draggedQuality(baseQuality, change, *limit);
        changed.quality = eq->quality;
    } else if (auto *asymmetric = dynamic_cast<AsymmetricEqFilter *>(record);
               asymmetric && isAsymmetric(changed.relation)) {
        double &quality =
            changed.relation == HandleRelation::AsymmetricSecond ? asymmetric->quality2 : asymmetric->quality;
        quality = draggedQuality(baseQuality, change, asymmetricQualityLimit);
        changed.quality = quality;
    } else {
        return refused();
    }
    return editOf(changed);
}

} // namespace tamble::client
