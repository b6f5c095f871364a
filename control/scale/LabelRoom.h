#pragma once

#include <QtCore/QList>

#include <optional>

namespace tamble::client {

/// Room that a label would take along an axis, in pixels.
struct LabelSpan
{
    /// Distance of the label's centre from the start of the axis.
    double centre = 0.0;
    double length = 0.0;
    /// Labels of a lower rank come first.
    int rank = 0;
};

/// Which labels are shown: in the order of their ranks, and of the list within one, those that come no closer than
/// `gap` to another that is shown.
QList<bool> labelsWithRoom(const QList<LabelSpan> &labels, double gap);

/// Starts of the numbers along an axis of the given length, one entry for each that is shown, in pixels.
///
/// Numbers that would stick out are shifted inside. The two at the ends stay, and of these the last when there is room
/// for only one.
QList<std::optional<double>> numberStarts(QList<LabelSpan> numbers, double axisLength, double gap);

} // namespace tamble::client
