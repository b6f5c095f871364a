#pragma once

#include <QtCore/QPointF>

#include <cstdint>
#include <vector>

namespace tamble::client {

/// A handle among the others of its plot.
struct HandleSpot
{
    QPointF centre;            ///< In pixels of the plot.
    std::uint64_t touched = 0; ///< Counts up with each touch of any handle; 0 for one that was never touched.
};

/// Handles whose distances to a point differ by less, in pixels, lie on each other there.
constexpr double stackReach = 4.0;

/// The handles that are meant at a point, as positions in `spots` in their order: the one with the nearest centre, and
/// those that lie on it.
std::vector<std::size_t> stackAt(const std::vector<HandleSpot> &spots, const QPointF &point);

/// The handle that a press at a point takes: of the nearest ones that touched last, otherwise the one on top, which is
/// the last. -1 when there is none.
int meantHandle(const std::vector<HandleSpot> &spots, const QPointF &point);

/// The handle after `current` in the stack at a point, -1 when `current` lies there alone.
int nextInStack(const std::vector<HandleSpot> &spots, const QPointF &point, int current);

} // namespace tamble::client
