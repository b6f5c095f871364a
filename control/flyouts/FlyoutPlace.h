#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>
#include <QtCore/Qt>

#include <span>

namespace tamble::client {

// Where flyouts stand. All sizes and places are in pixels of the layer that they share, whose top left corner is 0, 0.

/// Where a flyout is wanted, which it may have no room for at present.
struct FlyoutPlace
{
    QPointF position; ///< Of its top left corner.
    Qt::Edges docked; ///< Edges of the layer that it stays with when either gets another size.

    bool operator==(const FlyoutPlace &) const = default;
};

/// Where a flyout of `size` stands then: never so far out that less of its header than `reachable`, wide and high,
/// could be taken hold of. The header is at the top. In a layer that is too low for even that, the top counts.
QPointF standing(const FlyoutPlace &place, const QSizeF &size, const QSizeF &layer, const QSizeF &reachable);

/// The nearest place where the flyout touches an edge of the layer, or a neighbour, or is in line with one, if that is
/// no further than `reach` pixels away; likewise for the other direction. It docks at edges of the layer that it
/// touches. A reach below 0 does neither.
FlyoutPlace snapped(const QPointF &position, const QSizeF &size, const QSizeF &layer,
                    std::span<const QRectF> neighbours, double reach);

/// The size that a flyout at `position` gets when `size` is wanted: its right and bottom edges snap like a moved
/// flyout. Not less than `minimum`, and not beyond the layer if that has room for the minimum.
QSizeF snappedSize(const QPointF &position, const QSizeF &size, const QSizeF &layer, const QSizeF &minimum,
                   std::span<const QRectF> neighbours, double reach);

/// Top left corner of a flyout beside `area` at one of its edges, or where there is no room, at the opposite one; a
/// flyout that has room at neither covers a part of the area.
QPointF besideArea(const QRectF &area, Qt::Edge edge, const QSizeF &size, const QSizeF &layer);

/// The nearest place to `position` where all of a flyout is inside the layer; one that is larger begins with it.
QPointF inside(const QPointF &position, const QSizeF &size, const QSizeF &layer);

/// Top left corner of a flyout in the middle of the layer, in whole pixels.
QPointF centred(const QSizeF &size, const QSizeF &layer);

} // namespace tamble::client
