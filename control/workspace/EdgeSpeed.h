#pragma once

#include <QtCore/QPointF>
#include <QtCore/QSizeF>

namespace tamble::client {

/// How fast the view scrolls, in pixels per second, while a gesture's pointer is within 24 pixels of an edge of the
/// viewport or beyond it: faster the further out, up to 600.
QPointF edgeSpeed(const QPointF &pointer, const QSizeF &viewport);

} // namespace tamble::client
