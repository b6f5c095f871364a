#pragma once

#include "dynamics/TransferCurves.h"

namespace tamble::client {

/// Compressor levels in dB; `ratio` is the plain factor n of n : 1, `softKneeInDbu` the width of the soft knee.
struct CompressorParameters
{
    bool active = true;
    bool bypassed = true;
    bool softKneeActive = false;
    double softKneeInDbu = 0.0;
    double threshold = 0.0;
    double thresholdMin = 0.0;
    double thresholdMax = 0.0;
    double ratio = 1.0;
    double ratioMin = 1.0;
    double ratioMax = 1.0;
    double makeUpGain = 0.0;
    double makeUpGainMin = 0.0;
    double makeUpGainMax = 0.0;
};

/// Output level of the compressor for an input level, both in dB.
///
/// A ratio below 1 or NaN counts as 1; an infinite ratio limits. The quadratic of the soft knee meets both straight
/// parts with equal value and slope.
double compressorOutput(const CompressorParameters &parameters, double input);

/// Curve of the compressor: three points with a hard knee, nineteen with a soft one, plus one where a part of the
/// curve crosses the upper or lower edge of the plot. Inactive: no points; bypassed or an empty level range: identity.
CurvePoints compressorCurve(const CompressorParameters &parameters);

} // namespace tamble::client
