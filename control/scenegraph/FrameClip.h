#pragma once

#include <QtCore/QList>
#include <QtCore/QPointF>
#include <QtCore/QRectF>

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace tamble::client {

/// A line in pieces. The buffers keep their memory when they are cleared.
struct PolylineRuns
{
    std::vector<QPointF> points;   ///< Points of all runs, in order.
    std::vector<std::size_t> ends; ///< For each run the index behind its last point.

    void clear();
    std::size_t count() const { return ends.size(); }
    std::span<const QPointF> run(std::size_t index) const;
};

/// Cuts a line to a frame while it is being written, point by point.
///
/// Works in pixels as well as in axis units. What lies outside is cut where the line crosses the frame, never moved
/// onto it. A point that is not finite breaks the line; a run of a single point is dropped.
class FrameClip
{
public:
    /// Writes to `runs`, which has to outlive the clip; it is cleared.
    FrameClip(const QRectF &frame, PolylineRuns &runs);

    void lineTo(const QPointF &point);
    /// The next point starts a new line.
    void breakLine();
    /// To be called after the last point.
    void finish() { breakLine(); }

private:
    bool contains(const QPointF &point) const;
    void clipInto(const QPointF &point);
    void closeRun();

    double m_left;
    double m_top;
    double m_right;
    double m_bottom;
    PolylineRuns &m_runs;
    std::optional<QPointF> m_last;
    bool m_lastInside = false;
};

/// A stretch of a segment, as fractions of the way from its one end to the other.
struct SegmentPart
{
    double from = 0.0;
    double to = 1.0;
};

/// The part of a segment that is inside the frame; none when all of it is outside. All coordinates have to be finite.
std::optional<SegmentPart> clipSegment(const QPointF &from, const QPointF &to, const QRectF &frame);

/// The parts of a line that are inside the frame, each with at least two points.
QList<QList<QPointF>> clipPolyline(const QList<QPointF> &points, const QRectF &frame);

inline bool FrameClip::contains(const QPointF &point) const
{
    return point.x() >= m_left && point.x() <= m_right && point.y() >= m_top && point.y() <= m_bottom;
}

inline void FrameClip::lineTo(const QPointF &point)
{
    if (m_lastInside && contains(point)) {
        m_runs.points.push_back(point);
        m_last = point;
    } else {
        clipInto(point);
    }
}

} // namespace tamble::client
