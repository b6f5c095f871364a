#include "bodeplot/response/ResponseOutline.h"

#include <tamblecommon-math/ScaleMappings.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <utility>

namespace tamble::client {

namespace {

constexpr double halfTurn = 180.0;

/// How far, in pixels, a value may be from the drawn line and from the edge of the area. Most of a filter's curve is
/// almost straight, and leaving out the vertices of such stretches takes most of the triangles off a plot. A twentieth
/// of a pixel cannot be seen; the edge of the area lies below the line, so that only its shade counts, which depends on
/// the ratio to its height.
constexpr double lineTolerance = 0.05;
constexpr double areaTolerance = 0.4;
constexpr double shadeTolerance = 0.02;

/// Hands on the points of a line, from left to right or from right to left, but those that a straight line between
/// others passes within the sink's tolerance.
template <typename Sink>
class StraightWriter
{
public:
    explicit StraightWriter(Sink sink)
        : m_sink(std::move(sink))
    {}

    void add(const QPointF &point)
    {
        if (m_state == State::Waiting && !(slopeTo(point) >= m_lowest && slopeTo(point) <= m_highest))
            anchorAt(m_waiting);
        if (m_state == State::Empty) {
            anchorAt(point);
            return;
        }
        const double slope = slopeTo(point);
        const double slack = m_sink.toleranceAt(point) / std::abs(point.x() - m_anchor.x());
        m_lowest = std::max(m_lowest, slope - slack);
        m_highest = std::min(m_highest, slope + slack);
        m_waiting = point;
        m_state = State::Waiting;
    }

    void endRun()
    {
        if (m_state == State::Waiting)
            m_sink.point(m_waiting);
        if (m_state != State::Empty)
            m_sink.endRun();
        m_state = State::Empty;
    }

private:
    enum class State { Empty, Anchored, Waiting };

    double slopeTo(const QPointF &point) const { return (point.y() - m_anchor.y()) / (point.x() - m_anchor.x()); }

    void anchorAt(const QPointF &point)
    {
        m_sink.point(point);
        m_anchor = point;
        m_lowest = -std::numeric_limits<double>::infinity();
        m_highest = std::numeric_limits<double>::infinity();
        m_state = State::Anchored;
    }

    Sink m_sink;
    State m_state = State::Empty;
    QPointF m_anchor;
    QPointF m_waiting; ///< The last point, on which it is not decided yet.
    double m_lowest = 0.0;
    double m_highest = 0.0;
};

struct RunAppender
{
    void point(const QPointF &point) { outline.points.push_back(point); }
    void endRun() { outline.ends.push_back(outline.points.size()); }
    double toleranceAt(const QPointF &) const { return lineTolerance; }

    PolylineRuns &outline;
};

/// Writes the vertices of one line, from the lowest index upwards.
class OutlineWriter
{
public:
    OutlineWriter(const ResponseCurve &curve, const ResponseView &view, PolylineRuns &outline)
        : m_curve(curve)
        , m_line({outline})
        // Rows are whole pixels, the item need not be.
        , m_stretch(view.size.height() / view.rows())
    {
        using tamble::common::log2lin;
        const double width = view.size.width();
        m_first = log2lin(view.lowest, view.axes.x.from, view.axes.x.to, 0.0, width);
        const double last = log2lin(view.highest, view.axes.x.from, view.axes.x.to, 0.0, width);
        m_step = (last - m_first) / std::max(1.0, double(curve.values.size()) - 1.0);
    }

    double step() const { return m_step; }
    double xOf(double index) const { return m_first + index * m_step; }
    double indexAt(double x) const { return (x - m_first) / m_step; }

    void start(int index)
    {
        push(index, value(index));
        m_last = index;
    }

    void continueTo(int index) { continueTo(index, m_curve.scale(value(index))); }

    /// Continues the line to an index with the pixel y `level`, by way of the extrema in between.
    void continueTo(int index, double level)
    {
        if (m_curve.wraps && wrapsUntil(index)) {
            for (int k = m_last + 1; k <= index; ++k)
                stepTo(k);
        } else {
            extremaUntil(index);
            m_line.add({xOf(index), level * m_stretch});
        }
        m_last = index;
    }

    void finish() { m_line.endRun(); }

private:
    double value(int index) const { return m_curve.values[std::size_t(index)]; }

    void push(double index, double value) { m_line.add({xOf(index), m_curve.scale(value) * m_stretch}); }

    bool wrapsUntil(int index) const
    {
        for (int k = m_last; k < index; ++k) {
            if (std::abs(value(k + 1) - value(k)) > halfTurn)
                return true;
        }
        return false;
    }

    void stepTo(int index)
    {
        const double from = value(index - 1);
        const double way = value(index) - from;
        if (std::abs(way) > halfTurn) {
            const double edge = way < 0.0 ? halfTurn : -halfTurn;
            const double turned = way < 0.0 ? way + 2.0 * halfTurn : way - 2.0 * halfTurn;
            const double crossing = turned == 0.0 ? index : index - 1 + (edge - from) / turned;
            push(crossing, edge);
            m_line.endRun();
            push(crossing, -edge);
        }
        push(index, value(index));
    }

    void extremaUntil(int index)
    {
        const auto [low, high] = std::minmax({value(m_last), value(index)});
        double lowest = low;
        double highest = high;
        int lowestIndex = -1;
        int highestIndex = -1;
        for (int k = m_last + 1; k < index; ++k) {
            const double between = value(k);
            if (between < lowest) {
                lowest = between;
                lowestIndex = k;
            }
            if (between > highest) {
                highest = between;
                highestIndex = k;
            }
        }
        const auto [first, second] = std::minmax({lowestIndex, highestIndex});
        if (first >= 0)
            push(first, value(first));
        if (second >= 0)
            push(second, value(second));
    }

    const ResponseCurve &m_curve;
    StraightWriter<RunAppender> m_line;
    double m_stretch;
    double m_first = 0.0;
    double m_step = 0.0;
    int m_last = 0;
};

/// Appends the points of a line, held within the frame, and where it crosses the frame's edges and the axis.
class CrossingWriter
{
public:
    CrossingWriter(const QRectF &frame, double axisY, PolylineRuns &outline)
        : m_left(frame.left())
        , m_right(frame.left() + frame.width())
        , m_top(frame.top())
        , m_bottom(frame.top() + frame.height())
        , m_axis(axisY)
        , m_outline(outline)
    {}

    void point(const QPointF &position)
    {
        if (m_last)
            crossings(*m_last, position);
        append(position);
        m_last = position;
    }

    void endRun()
    {
        m_outline.ends.push_back(m_outline.points.size());
        m_last.reset();
    }

    double toleranceAt(const QPointF &position) const
    {
        return std::clamp(std::abs(position.y() - m_axis) * shadeTolerance, lineTolerance, areaTolerance);
    }

private:
    // In the order of the way.
    void crossings(const QPointF &from, const QPointF &to)
    {
        std::array<double, 5> parts{};
        std::size_t count = 0;
        const auto cross = [&](double a, double b, double level) {
            if ((a < level) == (b < level))
                return;
            std::size_t place = count++;
            const double part = (level - a) / (b - a);
            for (; place > 0 && parts[place - 1] > part; --place)
                parts[place] = parts[place - 1];
            parts[place] = part;
        };
        cross(from.x(), to.x(), m_left);
        cross(from.x(), to.x(), m_right);
        cross(from.y(), to.y(), m_top);
        cross(from.y(), to.y(), m_bottom);
        cross(from.y(), to.y(), m_axis);
        for (std::size_t i = 0; i < count; ++i)
            append(from + (to - from) * parts[i]);
    }

    void append(const QPointF &position)
    {
        m_outline.points.emplace_back(std::clamp(position.x(), m_left, m_right),
                                      std::clamp(position.y(), m_top, m_bottom));
    }

    double m_left;
    double m_right;
    double m_top;
    double m_bottom;
    double m_axis;
    PolylineRuns &m_outline;
    std::optional<QPointF> m_last;
};

} // namespace

void responseOutline(const ResponseCurve &curve, const ResponseView &view, PolylineRuns &outline)
{
    outline.clear();
    OutlineWriter writer(curve, view, outline);
    const int last = int(curve.values.size()) - 1;
    if (last < 1 || view.isEmpty() || !std::isfinite(writer.step()) || writer.step() == 0.0)
        return;

    const double left = writer.indexAt(0.0);
    const double right = writer.indexAt(view.size.width());
    const auto inRange = [last](double index) { return int(std::clamp(index, 0.0, double(last))); };
    const int begin = inRange(std::floor(std::min(left, right)));
    const int end = inRange(std::ceil(std::max(left, right)));
    if (begin >= end)
        return;

    writer.start(begin);
    int reached = begin;
    const std::size_t count = curve.samples.size();
    for (std::size_t i = 0; i < count; ++i) {
        // A frame whose frequencies run backwards shows the same values in the opposite order.
        const std::size_t column = left < right ? i : count - 1 - i;
        const int sample = curve.samples[column];
        if (sample > reached && sample < end) {
            writer.continueTo(sample, curve.columns[column]);
            reached = sample;
        }
    }
    writer.continueTo(end);
    writer.finish();
}

void areaOutline(const PolylineRuns &line, const QRectF &frame, double axisY, PolylineRuns &outline)
{
    outline.clear();
    StraightWriter writer(CrossingWriter(frame, axisY, outline));
    for (std::size_t i = 0; i < line.count(); ++i) {
        for (const QPointF &point : line.run(i))
            writer.add(point);
        writer.endRun();
    }
}

} // namespace tamble::client
