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

constexpr int asymmetricType = 12;

FilterHandle handleOf(const EqFilterExtended &record, int position)
{
    return {.record = position,
            .relation = HandleRelation::Eq,
            .motion = isWithoutGain(record.type) ? HandleMotion::Horizontal : HandleMotion::Both,
            .visible = record.visible,
            .bypass = record.bypass,
            .errorFlag = record.errorFlag,
            .frequencyHz = record.freq,
            .gainDb = record.gain,
            .quality = record.quality,
            .hasQuality = qualityCounts(record.type, record.slope),
            .dragsQuality = qualityLimit(record.type, record.slope).has_value(),
            .label = record.label,
            .point = {}};
}

FilterHandle handleOf(const AsymmetricEqFilterExtended &record, int position, bool second)
{
    return {.record = position,
            .relation = second ? HandleRelation::AsymmetricSecond : HandleRelation::AsymmetricFirst,
            .motion = HandleMotion::Both,
            .visible = record.visible,
            .bypass = record.bypass,
            .errorFlag = record.errorFlag,
            .frequencyHz = second ? record.freq2 : record.freq,
            .gainDb = record.gain,
            .quality = second ? record.quality2 : record.quality,
            .hasQuality = true,
            .dragsQuality = true,
            .label = record.label,
            .point = {}};
}

FilterHandle handleOf(const XOverFilterExtended &record, int position)
{
    return {.record = position,
            .relation = HandleRelation::XOver,
            .visible = record.visible,
            .bypass = record.bypass,
            .errorFlag = record.errorFlag,
            .frequencyHz = record.freq,
            .label = record.label,
            .point = {}};
}

FilterHandle handleOf(const FIRFilterExtended &record, int position, bool highPass)
{
    return {.record = position,
            .relation = highPass ? HandleRelation::FirHighPass : HandleRelation::FirLowPass,
            .visible = record.visible,
            .bypass = record.bypass,
            .errorFlag = highPass ? record.errorFlagHP : record.errorFlagLP,
            .frequencyHz = highPass ? record.freqHP : record.freqLP,
            .label = highPass ? record.labelHP : record.labelLP,
            .point = {}};
}

/// Whether an FIR type has a handle for the corner: low pass, high pass, band pass, and the same with minimum phase.
bool hasCorner(int firType, bool highPass)
{
    if (firType < 0 || firType > 5)
        return false;
    const int shape = firType % 3;
    return shape == 2 || shape == (highPass ? 1 : 0);
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

HandleProblem appendHandles(const CalculationItem *record, int position, std::vector<FilterHandle> &handles)
{
    if (!record)
        return HandleProblem::NullRecord;
    if (const auto *eq = dynamic_cast<const EqFilterExtended *>(record)) {
        if (eq->type == asymmetricType)
            return HandleProblem::AsymmetricTypeOfPlainBand;
        handles.push_back(handleOf(*eq, position));
    } else if (const auto *asymmetric = dynamic_cast<const AsymmetricEqFilterExtended *>(record)) {
        handles.push_back(handleOf(*asymmetric, position, false));
        handles.push_back(handleOf(*asymmetric, position, true));
    } else if (const auto *xOver = dynamic_cast<const XOverFilterExtended *>(record)) {
        handles.push_back(handleOf(*xOver, position));
    } else if (const auto *fir = dynamic_cast<const FIRFilterExtended *>(record)) {
        if (hasCorner(fir->type, true))
            handles.push_back(handleOf(*fir, position, true));
        if (hasCorner(fir->type, false))
            handles.push_back(handleOf(*fir, position, false));
        else if (!hasCorner(fir->type, true))
            return HandleProblem::UnsupportedFirType;
    } else {
        return HandleProblem::UnknownRecord;
    }
    return HandleProblem::None;
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
