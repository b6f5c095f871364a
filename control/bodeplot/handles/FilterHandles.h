#pragma once

#include "bodeplot/filters/FilterRecords.h"
#include "bodeplot/handles/HandleRules.h"

#include <QtCore/QPointF>
#include <QtCore/QString>

#include <optional>
#include <vector>

namespace tamble::client {

/// Which parameters of a record a handle edits.
enum class HandleRelation { Eq, AsymmetricFirst, AsymmetricSecond, XOver, FirHighPass, FirLowPass };

/// Whether the handle is one of the two of an asymmetric band.
constexpr bool isAsymmetric(HandleRelation relation)
{
    return relation == HandleRelation::AsymmetricFirst || relation == HandleRelation::AsymmetricSecond;
}

/// Text of a relation as pages and logs get it; "OUT OF RANGE" for none.
const QString &relationText(std::optional<HandleRelation> relation);

/// Which way a drag moves a handle.
enum class HandleMotion {
    Horizontal = 0, ///< frequency only
    Vertical = 1,   ///< gain only
    Both = 2,
};

/// One handle of a filter.
struct FilterHandle
{
    int record = -1; ///< Position of its record.
    HandleRelation relation = HandleRelation::Eq;
    HandleMotion motion = HandleMotion::Horizontal;
    bool visible = true;
    bool bypass = false;
    bool errorFlag = false;
    double frequencyHz = 0.0;
    double gainDb = 0.0;
    double quality = 0.0;
    bool hasQuality = false;            ///< Its filter's response depends on the Q.
    std::optional<double> qualityLimit; ///< Highest Q that a gesture can give; none when it cannot change the Q.
    QString label;
    QPointF point; ///< Normalised; outside 0 to 1 when it cannot be shown.
};

/// Why a record has no handle.
enum class HandleProblem { None, NullRecord, AsymmetricTypeOfPlainBand, UnsupportedFirType, UnknownRecord };

HandleProblem handleProblem(const FilterRecord &record);

/// Appends the handles of one record, without their points; none for a record with a problem.
void appendHandles(const FilterRecord &record, int position, std::vector<FilterHandle> &handles);

/// Point of a handle in the frame: a handle that is not visible is outside it in both directions.
QPointF handlePoint(const FilterHandle &handle, const PlotAxes &axes);

/// Where a drag leads that moves a handle by octaves to the right and by decibels upwards; within the frame.
QPointF steppedPoint(const FilterHandle &handle, double octaves, double decibels, const PlotAxes &axes);

/// Whether both lists have the same number and kinds of handles.
bool sameHandleKinds(const std::vector<FilterHandle> &a, const std::vector<FilterHandle> &b);

/// The handle next in order of frequency; `current` -1 stands outside, before the first and behind the last. Handles
/// outside the frame are passed over; -1 when there is none.
int neighbourHandle(const std::vector<FilterHandle> &handles, int current, bool forward);

} // namespace tamble::client
