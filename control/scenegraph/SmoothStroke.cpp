#include "scenegraph/SmoothStroke.h"

#include <cmath>
#include <cstddef>

namespace tamble::client {

namespace {

/// Mitres reach at most this many half widths from the corner.
constexpr float mitreLimit = 1.5f;

struct Vector
{
    float x = 0.0f;
    float y = 0.0f;
};

class StripWriter
{
public:
    StripWriter(const StrokeWidth &width, std::vector<StrokeVertex> &strip)
        : m_strip(strip)
        , m_offset(float(width.reach()))
        , m_halfWidth(float(width.reach() / width.pixelRatio))
    {}

    /// The two vertices of a point; `across` is a unit vector, or longer at a mitre.
    void pair(const Vector &point, const Vector &across)
    {
        const Vector reach{across.x * m_halfWidth, across.y * m_halfWidth};
        m_strip.push_back({point.x + reach.x, point.y + reach.y, m_offset});
        m_strip.push_back({point.x - reach.x, point.y - reach.y, -m_offset});
    }

    void corner(const Vector &point, const Vector &before, const Vector &after)
    {
        const float shared = 1.0f + before.x * after.x + before.y * after.y;
        if (shared * mitreLimit * mitreLimit >= 2.0f) {
            pair(point, {(before.x + after.x) / shared, (before.y + after.y) / shared});
        } else {
            pair(point, before);
            pair(point, after);
        }
    }

private:
    std::vector<StrokeVertex> &m_strip;
    float m_offset;
    float m_halfWidth;
};

} // namespace

void appendSmoothStroke(std::span<const QPointF> points, const StrokeWidth &width, std::vector<StrokeVertex> &strip)
{
    if (points.size() < 2 || !width.isDrawable())
        return;
    const std::size_t begin = strip.size();
    // Two vertices join the strip to the one before without a visible triangle; they are filled in at the end.
    if (begin > 0)
        strip.resize(begin + 2);

    StripWriter writer(width, strip);
    Vector last{float(points[0].x()), float(points[0].y())};
    Vector lastAcross;
    bool started = false;
    for (const QPointF &position : points.subspan(1)) {
        const Vector point{float(position.x()), float(position.y())};
        const Vector along{point.x - last.x, point.y - last.y};
        const float length = std::sqrt(along.x * along.x + along.y * along.y);
        if (!(length > 0.0f))
            continue;
        const Vector across{-along.y / length, along.x / length};
        if (started)
            writer.corner(last, lastAcross, across);
        else
            writer.pair(last, across);
        started = true;
        last = point;
        lastAcross = across;
    }
    if (!started) {
        strip.resize(begin);
        return;
    }
    writer.pair(last, lastAcross);
    if (begin > 0) {
        strip[begin] = strip[begin - 1];
        strip[begin + 1] = strip[begin + 2];
    }
}

} // namespace tamble::client
