#pragma once

#include <QtCore/QtGlobal>

#include <array>

namespace tamble::client {

/// What lies between two positions of a meter's bar.
enum class MeterZone { Ground, Green, Yellow, Red };
constexpr std::size_t meterZoneCount = 4;

/// Lit fractions of one section, each counted from the section's origin; those outside 0…1 are cut, NaN counts as 0.
struct SectionFactors
{
    double green = 0.0;
    double yellow = 0.0;
    double red = 0.0;
};

/// The ways in which a meter can be laid out.
struct MeterLayout
{
    bool horizontal = false;
    bool reverse = false;
};

/// Part of a bar in one colour, in pixels from the top or from the left.
struct MeterSegment
{
    float from = 0.0F;
    float to = 0.0F;
    MeterZone zone = MeterZone::Ground;

    bool operator==(const MeterSegment &) const = default;
};

/// A bar cut into the segments that a reader sees, without gaps or overlaps. Unused segments are empty.
using MeterSegments = std::array<MeterSegment, 2 * meterZoneCount>;

/// The segments of a bar of `length` pixels with one section. Higher zones lie behind lower ones. Edges are rounded to
/// device pixels, of which `pixelRatio` make one pixel.
MeterSegments barSegments(const SectionFactors &factors, double length, double pixelRatio, MeterLayout layout);

/// The same of a standing bar with two sections: `upper` takes the share `upperShare` (0 to 1, cut) and grows upwards,
/// `lower` the rest and grows downwards.
MeterSegments splitSegments(const SectionFactors &upper, const SectionFactors &lower, double upperShare, double length,
                            double pixelRatio);

} // namespace tamble::client
