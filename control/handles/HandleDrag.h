#pragma once

#include <QtCore/QPointF>

#include <optional>

namespace tamble::client {

/// What a handle does when it is taken hold of.
enum class HandleGrip {
    KeepsOffset, ///< It keeps its distance to the pointer.
    JumpsUnder,  ///< It goes under the pointer with the first move.
};

/// The keys held during a drag.
struct DragKeys
{
    bool fine = false;      ///< A tenth of the pace, from where the handle is.
    bool alongAxis = false; ///< Only the direction in which the drag has led further.
};

/// The way of a dragged handle over a plot: slack before it moves, pace, direction. All in pixels of the plot.
class HandleDrag
{
public:
    /// Takes hold of a handle that stands at `place`. It does not move before the pointer has gone as far as `slack`,
    /// so that the tremor of a click changes nothing.
    void begin(const QPointF &pointer, const QPointF &place, HandleGrip grip, double slack);

    /// Where the handle is drawn to, beyond the plot too; nothing within the slack.
    std::optional<QPointF> moved(const QPointF &pointer, const DragKeys &keys);

    /// Whether the pointer has left the slack.
    bool hasMoved() const { return m_hasMoved; }

private:
    QPointF freePlace(const QPointF &pointer) const;

    QPointF m_pressed;
    QPointF m_start;
    QPointF m_anchorPointer;
    QPointF m_anchorPlace;
    QPointF m_last;
    HandleGrip m_grip = HandleGrip::KeepsOffset;
    double m_slack = 0.0;
    bool m_fine = false;
    bool m_hasMoved = false;
};

} // namespace tamble::client
