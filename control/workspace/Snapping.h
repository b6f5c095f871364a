#pragma once

#include <QtCore/QPointF>
#include <QtCore/QRectF>
#include <QtCore/Qt>

#include <array>
#include <optional>
#include <span>
#include <vector>

namespace tamble::client {

// Where moved items come to rest. All places and distances are in plane units.

/// The lines that a moved set of items snaps to: left, centre and right, top, centre and bottom of those that rest.
class SnapLines
{
public:
    SnapLines() = default;
    explicit SnapLines(std::span<const QRectF> rects);

    /// A line, and how far something is moved to lie on it.
    struct Hit
    {
        double offset;
        double position;
    };

    /// The nearest line that a side or the centre of `rect` has within `distance`, each to lines of its own kind. Of
    /// two as near the one at the smaller offset. Horizontally they are those of left, centre and right.
    std::optional<Hit> nearest(Qt::Orientation direction, const QRectF &rect, double distance) const;

private:
    using Kinds = std::array<std::vector<double>, 3>; // sorted
    Kinds m_across;
    Kinds m_down;
};

struct Guide
{
    Qt::Orientation orientation; ///< Of the line.
    double position;             ///< On the other axis.

    bool operator==(const Guide &) const = default;
};

/// How a set of items is moved.
struct SnapRules
{
    QRectF plane;                                          ///< What the set does not leave.
    double distance = 0.0;                                 ///< Within which lines attract; not above 0 for none.
    double grid = 0.0;                                     ///< Distance of the grid lines; not above 0 for none.
    Qt::Orientations axes = Qt::Horizontal | Qt::Vertical; ///< In which directions it moves.
};

struct SnappedMove
{
    QPointF offset;
    std::vector<Guide> guides;
};

/// How far a set in the rectangle `set` goes when `offset` is wanted. In each direction lines of others come first,
/// then the grid, at which the top left corner `leader` is put, and then all of the set is kept in the plane.
SnappedMove snappedMove(const QRectF &set, const QPointF &leader, const QPointF &offset, const SnapLines &lines,
                        const SnapRules &rules);

/// The multiple of `grid` that is nearest to `value`; the value itself for a grid that is not above 0.
double snappedToGrid(double value, double grid);

/// How far a rectangle must be moved to be inside the plane; one that has no room begins with it.
QPointF offsetInto(const QRectF &plane, const QRectF &rect);

} // namespace tamble::client
