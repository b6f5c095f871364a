#include "dynamics/TransferCurves.h"

#include "dynamics/TransferScale.h"

namespace tamble::client {

CurvePoints identityLine()
{
    return {{0.0, 1.0}, {1.0, 0.0}};
}

CurvePoints limiterCurve(const LimiterParameters &p)
{
    if (!p.active)
        return {};
    if (p.bypassed)
        return identityLine();

    const LevelRange range{p.thresholdMin, p.thresholdMax};
    return {{0.0, 1.0}, range.point(p.threshold, p.threshold), {1.0, range.y(p.threshold)}};
}

CurvePoints agcCurve(const AgcParameters &p)
{
    if (!p.active)
        return {};
    if (p.bypassed)
        return identityLine();

    const LevelRange range{p.thresholdOffset + p.thresholdMin, p.thresholdOffset + p.thresholdMax};
    const double target = p.thresholdOffset + p.levelIn;
    const double kneeBegin = target + p.threshold - p.kneeIn;
    return {
        {0.0, range.y(p.thresholdOffset + p.thresholdMin)},
        range.point(kneeBegin, kneeBegin),
        range.point(target + p.threshold, target + p.threshold / p.ratio),
        range.point(target, target),
        {1.0, range.y(target + (p.thresholdMax - p.levelIn) / p.ratio)},
    };
}

CurvePoints duckerCurve(const DuckerParameters &p)
{
    if (!p.active)
        return {};
    if (p.bypassed)
        return identityLine();

    const LevelRange range{p.thresholdMin, p.thresholdMax};
    CurvePoints points{{0.0, 1.0}, range.point(p.threshold, p.threshold)};
    if (p.thresholdMin > p.threshold - p.duckingLevel) {
        // The ducked level lies under the plot: follow the floor to where the lowered identity comes up again.
        points.append({range.x(p.threshold), 1.0});
        const QPointF entry = intersection({0.0, p.thresholdMin}, {1.0, -p.duckingLevel});
        points.append(range.point(entry.x(), entry.y()));
    } else {
        points.append(range.point(p.threshold, p.threshold - p.duckingLevel));
    }
    points.append({1.0, range.y(p.thresholdMax - p.duckingLevel)});
    return points;
}

std::optional<CurvePoints> gateCurve(const GateParameters &p)
{
    if (!p.active)
        return CurvePoints();
    if (p.bypassed || p.depth == 0.0)
        return identityLine();
    if (p.thresholdMin > p.threshold || p.threshold > p.thresholdMax || p.depthMin > p.depth || p.depth > p.depthMax)
        return std::nullopt;

    const LevelRange range{p.thresholdMin, p.thresholdMax};
    CurvePoints points;
    const QPointF floorExit = intersection({0.0, p.thresholdMin}, {1.0, -p.depth});
    if (range.x(p.threshold) > range.x(floorExit.x()))
        points.append({range.x(floorExit.x()), 1.0});
    points.append(range.point(p.threshold, p.threshold - p.depth));
    points.append(range.point(p.threshold, p.threshold));
    points.append({1.0, 0.0});
    return points;
}

CurvePoints ancCurve(const AncParameters &p)
{
    if (!p.active)
        return {};

    const LevelRange ambient{p.ambientThresholdOffset + p.ambientThresholdMin,
                             p.ambientThresholdOffset + p.ambientThresholdMax};
    const LevelRange gain{p.minimumGainMin, p.maximumGainMax};
    if (p.bypassed)
        return {{0.0, gain.y(0.0)}, {1.0, gain.y(0.0)}};

    const auto ambientX = [&](double level) { return ambient.x(p.ambientThresholdOffset + level); };
    const double riseTop = (p.maximumGain - p.minimumGain) / p.ratio + p.ambientThreshold;
    const double riseEnd = riseTop < p.ambientThresholdMax ? riseTop : p.ambientThresholdMax;
    CurvePoints points{
        {0.0, gain.y(p.minimumGain)},
        {ambientX(p.ambientThreshold), gain.y(p.minimumGain)},
        {ambientX(riseEnd), gain.y(p.minimumGain + p.ratio * (riseEnd - p.ambientThreshold))},
    };
    if (p.ambientThresholdMax >= riseTop)
        points.append({1.0, gain.y(p.maximumGain)});
    return points;
}

} // namespace tamble::client
