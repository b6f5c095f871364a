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

bool isSecond(HandleRelation relation)
{
    return relation == HandleRelation::AsymmetricSecond;
}

} // namespace

QStringList FilterSet::setRecords(FilterRecords records)
{
    m_records = std::move(records);
    for (const FilterRecord &record : m_records)
        settleRecord(record);
    return makeHandles();
}

QString FilterSet::setRecord(int position, FilterRecord record)
{
    const auto index = std::size_t(position);
    settleRecord(record);
    const HandleProblem before = handleProblem(m_records.at(index));
    const HandleProblem now = handleProblem(record);
    m_records[index] = std::move(record);
    makeHandles();
    return now != before ? problemText(now, index) : QString();
}

void FilterSet::setAxes(const PlotAxes &axes)
{
    if (std::exchange(m_axes, axes) != axes)
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
    const int partner = isSecond(*relation) ? handle - 1 : handle + 1;
    return recordOf(partner) == recordOf(handle) ? partner : -1;
}

const FilterRecord &FilterSet::recordAt(const FilterHandle &handle) const
{
    return m_records[std::size_t(handle.record)];
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
        appendHandles(m_records[i], int(i), m_handles);
        if (const HandleProblem problem = handleProblem(m_records[i]); problem != HandleProblem::None)
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
    return recordAt(m_handles[std::size_t(handle)]).visit([&](auto &record) { return drag(handle, record, limited); });
}

HandleEdit FilterSet::drag(int index, EqFilterExtended &record, const QPointF &wanted)
{
    FilterHandle &handle = m_handles[std::size_t(index)];
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

HandleEdit FilterSet::drag(int index, XOverFilterExtended &record, const QPointF &wanted)
{
    FilterHandle &handle = m_handles[std::size_t(index)];
    handle.point.setX(wanted.x());
    record.freq = m_axes.x.valueAt(wanted.x());
    handle.frequencyHz = record.freq;
    return editOf(handle);
}

HandleEdit FilterSet::drag(int index, FIRFilterExtended &record, const QPointF &wanted)
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
    if (const std::optional<FirShape> shape = firShape(record.type); shape && shape->band == FirBand::BandPass) {
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

HandleEdit FilterSet::drag(int index, AsymmetricEqFilterExtended &record, const QPointF &wanted)
{
    FilterHandle &handle = m_handles[std::size_t(index)];
    double &frequency = isSecond(handle.relation) ? record.freq2 : record.freq;
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
    FilterHandle &handle = m_handles[std::size_t(edit.handle)];
    auto *record = recordAt(handle).as<AsymmetricEqFilterExtended>();
    if (!record)
        return false;
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
    m_records[std::size_t(position)].visit([](auto &record) {
        if constexpr (requires { record.gain; })
            record.gain = 0.0;
    });
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
    if (!changed.qualityLimit)
        return refused();
    changed.quality = draggedQuality(baseQuality, change, *changed.qualityLimit);
    if (auto *eq = recordAt(changed).as<EqFilterExtended>())
        eq->quality = changed.quality;
    else if (auto *asymmetric = recordAt(changed).as<AsymmetricEqFilterExtended>())
        (isSecond(changed.relation) ? asymmetric->quality2 : asymmetric->quality) = changed.quality;
    return editOf(changed);
}

} // namespace tamble::client
