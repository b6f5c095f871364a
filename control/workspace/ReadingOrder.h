#pragma once

#include <QtCore/QPointF>

#include <cstddef>
#include <span>
#include <vector>

namespace tamble::client {

/// Height in plane units of the rows in which items are read.
constexpr double readingRowHeight = 32.0;

/// The order in which somebody reads items with these top left corners: by rows from the top, and from the left to the
/// right within one. Results are indexes.
std::vector<std::size_t> readingOrder(std::span<const QPointF> corners);

} // namespace tamble::client
