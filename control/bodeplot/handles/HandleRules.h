#pragma once

#include "scale/PlotAxes.h"

#include <tamblecommon-math/FilterTypes.h>

#include <optional>

namespace tamble::client {

// Positions are normalised: x from 0 (left) to 1 (right), y from 0 (top) to 1 (bottom).

/// Position of a handle that is outside the frame on the left or above, and on the right or below.
constexpr double beforeFrame = -1.0;
constexpr double behindFrame = 2.0;

/// Smallest distance of the two handles of a band-pass FIR filter.
constexpr double firHandleDistance = 0.03;

/// x of a frequency, `beforeFrame` or `behindFrame` for one that is not visible (NaN too).
double handleX(double frequencyHz, const PlotAxes &axes);
/// y of a level, `beforeFrame` or `behindFrame` for one that is not visible (NaN too).
double handleY(double levelDb, const PlotAxes &axes);

/// Keeps a dragged handle between +12 dB and -18 dB, whatever the frame shows.
double limitedHandleY(double y, const PlotAxes &axes);

/// Highest Q that a gesture can give an equaliser band of the type; none when its Q cannot be dragged.
std::optional<double> qualityLimit(tamble::common::EqType type, tamble::common::FilterSlope slope);
/// Highest Q that a gesture can give an asymmetric band.
constexpr double asymmetricQualityLimit = 2.0;

/// Q after a drag of `change` pixels (positive is downwards and raises Q) from `baseQuality`: 200 pixels reach the
/// upper limit or the lower one of 0.4. Never outside these; a base that is not a number counts as 0.4.
double draggedQuality(double baseQuality, double change, double upperLimit);

} // namespace tamble::client
