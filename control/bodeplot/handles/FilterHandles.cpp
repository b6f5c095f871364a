#include "bodeplot/handles/FilterHandles.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
#include <iterator>
#include <utility>

namespace tamble::client {

using namespace tamble::common;

namespace {

/// What all handles take from their records in the same way.
template <typename Record>
FilterHandle handleAt(int position, const Record &record, HandleRelation relation, double frequencyHz)
{
    FilterHandle handle;
    handle.record = position;
    handle.relation = relation;
    handle.visible = record.visible;
    handle.bypass = record.bypass;
    handle.frequencyHz = frequencyHz;
    return handle;
}

using Handles = std::vector<FilterHandle>;

void append(const EqFilterExtended &record, int position, Handles &handles)
{
    const auto type = EqType(record.type);
    const auto slope = FilterSlope(record.slope);
    FilterHandle handle = handleAt(position, record, HandleRelation::Eq, record.freq);
    handle.motion = gainCounts(type) ? HandleMotion::Both : HandleMotion::Horizontal;
    handle.gainDb = record.gain;
    handle.quality = record.quality;
    handle.hasQuality = qualityCounts(type, slope);
    handle.qualityLimit = qualityLimit(type, slope);
    handle.errorFlag = record.errorFlag;
    handle.label = record.label;
    handles.push_back(std::move(handle));
}

void append(const AsymmetricEqFilterExtended &record, int position, Handles &handles)
{
    for (const bool second : {false, true}) {
        FilterHandle handle =
            handleAt(position, record, second ? HandleRelation::AsymmetricSecond : HandleRelation::AsymmetricFirst,
                     second ? record.freq2 : record.freq);
        handle.motion = HandleMotion::Both;
        handle.gainDb = record.gain;
        handle.quality = second ? record.quality2 : record.quality;
        handle.hasQuality = true;
        handle.qualityLimit = asymmetricQualityLimit;
        handle.errorFlag = record.errorFlag;
        handle.label = record.label;
        handles.push_back(std::move(handle));
    }
}

void append(const XOverFilterExtended &record, int position, Handles &handles)
{
    FilterHandle handle = handleAt(position, record, HandleRelation::XOver, record.freq);
    handle.errorFlag = record.errorFlag;
    handle.label = record.label;
    handles.push_back(std::move(handle));
}

void append(const FIRFilterExtended &record, int position, Handles &handles)
{
    const std::optional<FirShape> shape = firShape(record.type);
    if (shape && shape->band != FirBand::LowPass) {
        FilterHandle handle = handleAt(position, record, HandleRelation::FirHighPass, record.freqHP);
        handle.errorFlag = record.errorFlagHP;
        handle.label = record.labelHP;
        handles.push_back(std::move(handle));
    }
    if (shape && shape->band != FirBand::HighPass) {
        FilterHandle handle = handleAt(position, record, HandleRelation::FirLowPass, record.freqLP);
        handle.errorFlag = record.errorFlagLP;
        handle.label = record.labelLP;
        handles.push_back(std::move(handle));
    }
}

bool isInFrame(const QPointF &point)
{
    return point.x() >= 0.0 && point.x() <= 1.0 && point.y() >= 0.0 && point.y() <= 1.0;
}

} // namespace

const QString &relationText(std::optional<HandleRelation> relation)
{
    static const std::array<QString, 6> texts{QStringLiteral("EQ"),      QStringLiteral("ASYMEQ1"),
                                              QStringLiteral("ASYMEQ2"), QStringLiteral("XOVER"),
                                              QStringLiteral("FIRHP"),   QStringLiteral("FIRLP")};
    static const QString none = QStringLiteral("OUT OF RANGE");
    return relation ? texts.at(std::size_t(*relation)) : none;
}

HandleProblem handleProblem(const FilterRecord &record)
{
    if (!record)
        return HandleProblem::NullRecord;
    if (const auto *eq = record.as<EqFilterExtended>(); eq && EqType(eq->type) == EqType::Asymmetric)
        return HandleProblem::AsymmetricTypeOfPlainBand;
    if (const auto *fir = record.as<FIRFilterExtended>(); fir && !firShape(fir->type))
        return HandleProblem::UnsupportedFirType;
    const bool isKnown = record.visit([](const auto &) { return true; });
    return isKnown ? HandleProblem::None : HandleProblem::UnknownRecord;
}

void appendHandles(const FilterRecord &record, int position, std::vector<FilterHandle> &handles)
{
    if (handleProblem(record) == HandleProblem::None)
        record.visit([&](const auto &filter) { append(filter, position, handles); });
}

QPointF handlePoint(const FilterHandle &handle, const PlotAxes &axes)
{
    if (!handle.visible)
        return {beforeFrame, beforeFrame};
    return {handleX(handle.frequencyHz, axes), handleY(handle.gainDb, axes)};
}

QPointF steppedPoint(const FilterHandle &handle, double octaves, double decibels, const PlotAxes &axes)
{
    // From the point, since the values of an asymmetric band are one step late. A direction without a step keeps its
    // place, which a way there and back through Hz or dB might round.
    QPointF point = handle.point;
    if (octaves != 0.0) {
        const double frequency = axes.x.valueAt(point.x()) * std::exp2(octaves);
        point.setX(handleX(std::clamp(frequency, axes.x.from, std::max(axes.x.from, axes.x.to)), axes));
    }
    if (decibels != 0.0) {
        const double level = axes.y.valueAt(1.0 - point.y()) + decibels;
        point.setY(handleY(std::clamp(level, axes.y.from, std::max(axes.y.from, axes.y.to)), axes));
    }
    return point;
}

bool sameHandleKinds(const std::vector<FilterHandle> &a, const std::vector<FilterHandle> &b)
{
    return std::ranges::equal(a, b, {}, &FilterHandle::relation, &FilterHandle::relation);
}

int neighbourHandle(const std::vector<FilterHandle> &handles, int current, bool forward)
{
    std::vector<std::pair<double, int>> order;
    for (std::size_t i = 0; i < handles.size(); ++i) {
        if (isInFrame(handles[i].point) || int(i) == current)
            order.emplace_back(handles[i].point.x(), int(i));
    }
    if (!forward)
        std::ranges::sort(order, std::greater());
    else
        std::ranges::sort(order);
    const auto found = std::ranges::find(order, current, &std::pair<double, int>::second);
    const auto next = found == order.end() ? order.begin() : std::next(found);
    return next == order.end() ? -1 : next->second;
}

} // namespace tamble::client
