#pragma once

#include <QtCore/QList>
#include <QtCore/QPointF>

#include <optional>

namespace tamble::client {

/// Corner points of a static transfer curve: x 0 (left) to 1 (right), y 0 (top) to 1 (bottom).
///
/// Every coordinate comes from the clamped scale, so it is a number within 0…1 whatever the parameters are.
using CurvePoints = QList<QPointF>;

/// Input equals output: from the lower left to the upper right corner.
CurvePoints identityLine();

/// Limiter levels in dB.
struct LimiterParameters
{
    bool active = true;
    bool bypassed = true;
    double threshold = 0.0;
    double thresholdMin = 0.0;
    double thresholdMax = 0.0;
};

/// Automatic gain control levels in dB; `threshold` is relative to `levelIn`, `ratio` is a plain factor.
struct AgcParameters
{
    bool active = false;
    bool bypassed = true;
    double levelIn = 0.0;
    double levelInMin = 0.0;
    double levelInMax = 0.0;
    double threshold = 0.0;
    double thresholdMin = 0.0;
    double thresholdMax = 0.0;
    double thresholdOffset = 0.0;
    double kneeIn = 0.0;
    double kneeInMin = 0.0;
    double kneeInMax = 0.0;
    double ratio = 0.0;
    double ratioMin = 0.0;
    double ratioMax = 0.0;
};

/// Ducker levels in dB; `duckingLevel` is the attenuation above the threshold.
struct DuckerParameters
{
    bool active = true;
    bool bypassed = true;
    double threshold = 0.0;
    double thresholdMin = 0.0;
    double thresholdMax = 0.0;
    double duckingLevel = 0.0;
    double duckingLevelMin = 0.0;
    double duckingLevelMax = 0.0;
};

/// Noise gate levels in dB; `depth` is the attenuation below the threshold.
struct GateParameters
{
    bool active = true;
    bool bypassed = true;
    double threshold = 0.0;
    double thresholdMin = 0.0;
    double thresholdMax = 0.0;
    double depth = 0.0;
    double depthMin = 0.0;
    double depthMax = 0.0;
};

/// Ambient noise compensation: gains and ambient levels in dB, `ratio` in dB of gain per dB of ambient level.
struct AncParameters
{
    bool active = false;
    bool bypassed = true;
    bool freezeGain = true;
    double ambientThreshold = 0.0;
    double ambientThresholdMin = 0.0;
    double ambientThresholdMax = 0.0;
    double ambientThresholdOffset = 0.0;
    double minimumGain = 0.0;
    double minimumGainMin = 0.0;
    double minimumGainMax = 0.0;
    double maximumGain = 0.0;
    double maximumGainMin = 0.0;
    double maximumGainMax = 0.0;
    double ratio = 0.0;
    double ratioMin = 0.0;
    double ratioMax = 0.0;
};

/// Identity up to the threshold, level from there on. Inactive: no points; bypassed: identity.
CurvePoints limiterCurve(const LimiterParameters &parameters);

/// Identity, knee, raised threshold point, target level, compressed excess. Inactive: no points; bypassed: identity.
CurvePoints agcCurve(const AgcParameters &parameters);

/// Identity up to the threshold, then the identity lowered by the ducking level. Inactive: no points; bypassed:
/// identity.
CurvePoints duckerCurve(const DuckerParameters &parameters);

/// Identity lowered by the depth below the threshold, identity above. Inactive: no points; bypassed: identity.
///
/// Nothing when the threshold or the depth lies outside its bounds: there is no curve to announce then.
std::optional<CurvePoints> gateCurve(const GateParameters &parameters);

/// Gain over ambient level: minimum gain, rise, maximum gain. Inactive: no points; bypassed: flat at 0 dB.
CurvePoints ancCurve(const AncParameters &parameters);

} // namespace tamble::client
