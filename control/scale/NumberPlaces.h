#pragma once

#include <QtCore/QList>

#include <optional>

namespace tamble::client {

/// Room that a number would take along an axis, in pixels.
struct NumberSpan
{
    /// Distance of the number's centre from the start of the axis.
    double centre = 0.0;
    double length = 0.0;
};

/// Starts of the numbers along an axis of the given length, one entry for each, in pixels.
///
/// Numbers that would stick out are shifted inside. One that would come closer than `gap` to the shown one before it,
/// or to the last one, is left out: the two at the ends stay, and of these the last when there is room for only one.
QList<std::optional<double>> numberStarts(const QList<NumberSpan> &numbers, double axisLength, double gap);

} // namespace tamble::client
