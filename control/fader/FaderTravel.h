#pragma once

#include <QtCore/QList>

namespace tamble::client {

/// How a fader spreads its range over its travel.
enum class FaderLaw { Linear, Exponential, Table };

/// Range and law of a fader. Levels are in dB, positions on the travel are 0 (at `from`) to 1 (at `to`).
///
/// `from` may be the greater one. A range that is empty or holds no finite number cannot be travelled: everything is at
/// `from` then.
struct FaderTravel
{
    double from = -80.0;
    double to = 10.0;
    FaderLaw law = FaderLaw::Linear;

    bool operator==(const FaderTravel &) const = default;

    bool isUsable() const;
    bool contains(double level) const;
    /// `level` or the end of the range beyond which it lies; NaN gives `from`.
    double limited(double level) const;

    /// Place of a level, limited to 0…1; NaN gives 0.
    double position(double level) const;
    /// Level at a place, limited to the range; NaN gives `from`.
    double level(double position) const;

    /// The nearest of the levels from + k · step, and the ends of the range. A step of 0 leaves the level as it is;
    /// negative steps count by their size.
    double rounded(double level, double step) const;

    /// `level` moved by `delta`, without the noise of adding binary fractions, and limited to the range.
    double stepped(double level, double delta) const;

    /// Level of the detent that holds a handle at `position`, the nearest one within `reach` of travel, else `level`.
    double held(double level, double position, const QList<double> &detents, double reach) const;
};

} // namespace tamble::client
