#pragma once

namespace tamble::client {

/// Levels that bound a meter's bar, in dB.
struct MeterRange
{
    double minimum = -80.0;
    double maximum = 6.0;
    /// Origin of the two sections of a split meter.
    double split = 0.0;
};

/// Level that a meter shows for a requested one: limited to the range, NaN gives the minimum.
double displayedLevel(const MeterRange &range, double level);

/// Next displayed level of the falling peak, `step` dB lower but not below `target`; a target above rises at once.
double fallenLevel(double displayed, double target, double step);

/// Lit fraction of the whole bar, from its minimum to the lower of `level` and `zoneLimit` (both dB).
///
/// 0 when the level or the zone lies at or under the minimum or the range is empty, 1 at most. As with the two
/// functions below, arithmetic without a number as its result (infinite or NaN bounds) gives 0.
double barFraction(const MeterRange &range, double level, double zoneLimit);

/// Lit fraction of the upper section, from the split point upwards.
///
/// 0 when the level or the zone lies at or under the minimum or the section is empty, 1 at most. A level between
/// minimum and split point gives a negative fraction, which draws nothing.
double upperFraction(const MeterRange &range, double level, double zoneLimit);

/// Lit fraction of the lower section, from the split point downwards to the higher of `level` and `zoneLimit`.
///
/// 0 when the level or the zone lies under the minimum or the section is empty, 1 at most. Level and zone at the
/// minimum itself light the whole section. A level above the split point gives a negative fraction, which draws
/// nothing.
double lowerFraction(const MeterRange &range, double level, double zoneLimit);

} // namespace tamble::client
