#pragma once

#include <QtCore/QPointF>
#include <QtCore/QString>
#include <QtGui/QCursor>

#include <optional>

namespace tamble::client {

/// The cursor that a picture file shows, a device-independent pixel for each of its own, on a screen with `screenRatio`
/// device pixels for each of those. `hotSpot` is brought into the picture. Nothing for what cannot be read, or is
/// larger than 256 pixels a side.
std::optional<QCursor> pictureCursor(const QString &file, const QPointF &hotSpot, qreal screenRatio);

} // namespace tamble::client
