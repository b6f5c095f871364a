#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/Qt>

#include <span>
#include <vector>

namespace tamble::client {

// How the items of a selection are put in order. Results are top left corners, in the order of the rectangles.

/// The smallest rectangle around all; empty for none. Rectangles without an area count as well.
QRectF boundsOf(std::span<const QRectF> rects);

/// All at one side of `bounds`, or centred in it: Qt::AlignLeft, AlignRight, AlignTop, AlignBottom, AlignHCenter or
/// AlignVCenter. For anything else they stay.
std::vector<QPointF> aligned(std::span<const QRectF> rects, const QRectF &bounds, Qt::Alignment edge);

/// With equal gaps between the first and the last one in a direction, which stay; overlapping ones overlap equally.
/// Fewer than three stay.
std::vector<QPointF> distributed(std::span<const QRectF> rects, Qt::Orientation direction);

/// As one set moved into the plane; one that has no room begins with it.
std::vector<QPointF> keptInside(const QRectF &plane, std::span<const QRectF> rects);

} // namespace tamble::client
