#include "meter/MeterSegments.h"

#include <algorithm>
#include <cmath>

namespace tamble::client {

namespace {

// NaN compares false, so it ends at 0.
double cut(double share)
{
    return share > 0.0 ? std::min(share, 1.0) : 0.0;
}

class Section
{
public:
    Section(double from, double to, double pixelRatio)
        : m_from(from)
        , m_to(to)
        , m_pixelRatio(pixelRatio)
    {}

    // Four segments from the section's beginning, or from its end with `backward`.
    MeterSegment *write(const SectionFactors &factors, bool backward, MeterSegment *out) const
    {
        const double green = cut(factors.green);
        const double yellow = std::max(green, cut(factors.yellow));
        const double red = std::max(yellow, cut(factors.red));
        const std::array<double, meterZoneCount + 1> edges = {0.0, green, yellow, red, 1.0};
        constexpr std::array zones = {MeterZone::Green, MeterZone::Yellow, MeterZone::Red, MeterZone::Ground};
        for (std::size_t i = 0; i < zones.size(); ++i) {
            const float begin = position(backward ? 1.0 - edges.at(i) : edges.at(i));
            const float end = position(backward ? 1.0 - edges.at(i + 1) : edges.at(i + 1));
            *out++ = {std::min(begin, end), std::max(begin, end), zones.at(i)};
        }
        return out;
    }

private:
    float position(double share) const
    {
        return float(std::round((m_from + share * (m_to - m_from)) * m_pixelRatio) / m_pixelRatio);
    }

    double m_from;
    double m_to;
    double m_pixelRatio;
};

} // namespace

MeterSegments barSegments(const SectionFactors &factors, double length, double pixelRatio, MeterLayout layout)
{
    MeterSegments segments;
    Section(0.0, length, pixelRatio).write(factors, layout.horizontal == layout.reverse, segments.data());
    return segments;
}

MeterSegments splitSegments(const SectionFactors &upper, const SectionFactors &lower, double upperShare, double length,
                            double pixelRatio)
{
    MeterSegments segments;
    const double split = cut(upperShare) * length;
    MeterSegment *next = Section(0.0, split, pixelRatio).write(upper, true, segments.data());
    Section(split, length, pixelRatio).write(lower, false, next);
    return segments;
}

} // namespace tamble::client
