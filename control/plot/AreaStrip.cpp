#include "plot/AreaStrip.h"

#include <algorithm>
#include <cmath>

namespace tamble::client {

namespace {

/// How much higher one end of a piece may be than the other. The saturation at height y below a curve of height h is
/// (near axis * h + (near curve - near axis) * y) / h. The renderer interpolates the first factor exactly, as h is
/// straight between two points, and takes a straight line for 1 / h, which is too large by (growth - 1)^2 / (4 *
/// growth) of it at most: 4.2 %. Pieces are triangles to set up for the renderer: 1.25 gives a plot of 16 bands half as
/// many vertices again.
constexpr double growth = 1.5;

/// Below this height, in pixels, an area is covered by the line, so that its shade is not seen.
constexpr double thinnest = 2.0;

double saturationOf(double value)
{
    return value > 0.0 ? std::fmin(value, 1.0) : 0.0;
}

class AreaWriter
{
public:
    AreaWriter(double axisY, const AreaSaturation &saturation, std::vector<AreaVertex> &strip)
        : m_axisY(axisY)
        , m_nearCurve(saturationOf(saturation.nearCurve))
        , m_nearAxis(saturationOf(saturation.nearAxis))
        , m_strip(strip)
    {}

    /// The vertices on the curve and on the axis.
    void column(const QPointF &point)
    {
        const double height = std::max(heightOf(point), thinnest);
        const auto inverse = float(1.0 / height);
        m_strip.push_back({float(point.x()), float(point.y()), float(m_nearCurve * height), inverse});
        m_strip.push_back({float(point.x()), float(m_axisY), float(m_nearAxis * height), inverse});
    }

    /// Columns between two points such that none is much higher than the next.
    void columnsBetween(const QPointF &from, const QPointF &to)
    {
        const double first = heightOf(from);
        const double last = heightOf(to);
        const auto columnAt = [&](double height) { column(from + (to - from) * ((height - first) / (last - first))); };
        double height = std::max(first * growth, thinnest);
        while (height < last) {
            columnAt(height);
            height *= growth;
        }
        height = first / growth;
        while (height > std::max(last, thinnest)) {
            columnAt(height);
            height /= growth;
        }
        if (last < thinnest && thinnest < first)
            columnAt(thinnest);
    }

private:
    double heightOf(const QPointF &point) const { return std::abs(point.y() - m_axisY); }

    double m_axisY;
    double m_nearCurve;
    double m_nearAxis;
    std::vector<AreaVertex> &m_strip;
};

} // namespace

void appendAreaStrip(std::span<const QPointF> curve, double axisY, const AreaSaturation &saturation,
                     std::vector<AreaVertex> &strip)
{
    if (curve.size() < 2)
        return;
    AreaWriter writer(axisY, saturation, strip);
    const std::size_t begin = strip.size();
    // Two vertices join the strip to the one before without a visible triangle; they are filled in at the end.
    if (begin > 0)
        strip.resize(begin + 2);
    writer.column(curve.front());
    for (std::size_t i = 1; i < curve.size(); ++i) {
        writer.columnsBetween(curve[i - 1], curve[i]);
        writer.column(curve[i]);
    }
    if (begin > 0) {
        strip[begin] = strip[begin - 1];
        strip[begin + 1] = strip[begin + 2];
    }
}

} // namespace tamble::client
