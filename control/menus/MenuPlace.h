#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/QSizeF>

namespace tamble::client {

/// Top left corner of a menu of `size` pixels that belongs to a pressed point, which it leaves uncovered by a pixel: at
/// its right and below, or where there is no room in `room`, at its left or above. Only a menu that fits at none of its
/// sides covers it.
QPointF placeBesidePoint(const QPointF &pressed, const QSizeF &size, const QRectF &room);

/// Top left corner of a menu that hangs below `area`, or stands above it where `room` ends.
QPointF placeBelow(const QRectF &area, const QSizeF &size, const QRectF &room);

} // namespace tamble::client
