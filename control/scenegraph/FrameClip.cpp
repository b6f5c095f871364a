#include "scenegraph/FrameClip.h"

#include <algorithm>
#include <cmath>

namespace tamble::client {

namespace {

bool isFinite(const QPointF &point)
{
    return std::isfinite(point.x()) && std::isfinite(point.y());
}

/// Narrows the part to where one coordinate is between its limits; false when nothing is left.
bool narrow(SegmentPart &part, double from, double to, double lower, double upper)
{
    const double way = to - from;
    if (way == 0.0)
        return from >= lower && from <= upper;
    const double entry = ((way > 0.0 ? lower : upper) - from) / way;
    const double leave = ((way > 0.0 ? upper : lower) - from) / way;
    part.from = std::max(part.from, entry);
    part.to = std::min(part.to, leave);
    return part.from <= part.to;
}

} // namespace

void PolylineRuns::clear()
{
    points.clear();
    ends.clear();
}

std::span<const QPointF> PolylineRuns::run(std::size_t index) const
{
    const std::size_t begin = index > 0 ? ends[index - 1] : 0;
    return std::span(points).subspan(begin, ends[index] - begin);
}

FrameClip::FrameClip(const QRectF &frame, PolylineRuns &runs)
    : m_left(frame.left())
    , m_top(frame.top())
    , m_right(frame.left() + frame.width())
    , m_bottom(frame.top() + frame.height())
    , m_runs(runs)
{
    m_runs.clear();
}

void FrameClip::clipInto(const QPointF &point)
{
    if (!isFinite(point)) {
        breakLine();
        return;
    }
    const bool inside = contains(point);
    if (m_last) {
        const QRectF frame(m_left, m_top, m_right - m_left, m_bottom - m_top);
        const QPointF way = point - *m_last;
        const auto part = clipSegment(*m_last, point, frame);
        if (part && !m_lastInside)
            m_runs.points.push_back(*m_last + way * part->from);
        if (part)
            m_runs.points.push_back(inside ? point : *m_last + way * part->to);
    } else if (inside) {
        m_runs.points.push_back(point);
    }
    if (!inside)
        closeRun();
    m_last = point;
    m_lastInside = inside;
}

void FrameClip::breakLine()
{
    closeRun();
    m_last.reset();
    m_lastInside = false;
}

void FrameClip::closeRun()
{
    const std::size_t begin = m_runs.ends.empty() ? 0 : m_runs.ends.back();
    if (m_runs.points.size() < begin + 2)
        m_runs.points.resize(begin);
    else
        m_runs.ends.push_back(m_runs.points.size());
}

std::optional<SegmentPart> clipSegment(const QPointF &from, const QPointF &to, const QRectF &frame)
{
    SegmentPart part;
    if (!narrow(part, from.x(), to.x(), frame.left(), frame.left() + frame.width()) ||
        !narrow(part, from.y(), to.y(), frame.top(), frame.top() + frame.height()))
        return std::nullopt;
    return part;
}

QList<QList<QPointF>> clipPolyline(const QList<QPointF> &points, const QRectF &frame)
{
    PolylineRuns runs;
    FrameClip clip(frame, runs);
    for (const QPointF &point : points)
        clip.lineTo(point);
    clip.finish();

    QList<QList<QPointF>> result;
    for (std::size_t i = 0; i < runs.count(); ++i) {
        const auto run = runs.run(i);
        result.emplace_back(run.begin(), run.end());
    }
    return result;
}

} // namespace tamble::client
