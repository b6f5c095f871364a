#include "dynamics/CompressorCurve.h"
#include "dynamics/TransferCurves.h"
#include "dynamics/TransferScale.h"
#include "support/Numbers.h"
#include "support/TestProgram.h"

#include <QtCore/QObject>
#include <QtTest/QtTest>

#include <cmath>

using namespace tamble::client;

namespace {

bool isNear(const QPointF &a, const QPointF &b)
{
    return std::abs(a.x() - b.x()) < 1e-9 && std::abs(a.y() - b.y()) < 1e-9;
}

void compare(const CurvePoints &actual, const CurvePoints &expected)
{
    const bool equal = std::equal(actual.begin(), actual.end(), expected.begin(), expected.end(), isNear);
    if (!equal)
        qDebug() << "actual" << actual << "expected" << expected;
    QVERIFY(equal);
}

LimiterParameters limiter(double minimum, double maximum, double threshold)
{
    return {
        .active = true, .bypassed = false, .threshold = threshold, .thresholdMin = minimum, .thresholdMax = maximum};
}

AgcParameters agc(double ratio, double offset)
{
    AgcParameters p;
    p.active = true;
    p.bypassed = false;
    p.thresholdMin = -60.0;
    p.thresholdMax = 20.0;
    p.thresholdOffset = offset;
    p.threshold = -20.0;
    p.kneeIn = 10.0;
    p.ratio = ratio;
    return p;
}

DuckerParameters ducker(double threshold, double duckingLevel)
{
    DuckerParameters p;
    p.bypassed = false;
    p.thresholdMin = -60.0;
    p.threshold = threshold;
    p.duckingLevel = duckingLevel;
    return p;
}

GateParameters gate(double threshold, double depth)
{
    GateParameters p;
    p.bypassed = false;
    p.thresholdMin = -60.0;
    p.threshold = threshold;
    p.depth = depth;
    p.depthMax = 60.0;
    return p;
}

AncParameters anc(double ratio)
{
    AncParameters p;
    p.active = true;
    p.bypassed = false;
    p.ambientThreshold = -20.0;
    p.ambientThresholdMin = -60.0;
    p.ambientThresholdMax = 20.0;
    p.ambientThresholdOffset = 7.0;
    p.minimumGain = -10.0;
    p.minimumGainMin = -20.0;
    p.maximumGain = 10.0;
    p.maximumGainMax = 20.0;
    p.ratio = ratio;
    return p;
}

CompressorParameters compressor(double ratio, double gain, double softKnee = 0.0)
{
    CompressorParameters p;
    p.bypassed = false;
    p.thresholdMin = -60.0;
    p.threshold = -20.0;
    p.ratio = ratio;
    p.makeUpGain = gain;
    p.softKneeActive = softKnee != 0.0;
    p.softKneeInDbu = softKnee;
    return p;
}

template <typename Parameters>
Parameters bypassed(Parameters parameters)
{
    parameters.bypassed = true;
    return parameters;
}

template <typename Parameters>
Parameters inactive(Parameters parameters)
{
    parameters.active = false;
    return parameters;
}

} // namespace

class tst_TransferCurves : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clampedScale_data();
    void clampedScale();
    void curve_data();
    void curve();
    void gateOutOfBounds_data();
    void gateOutOfBounds();
    void softKnee();
    void kneeMeetsBothParts();
};

void tst_TransferCurves::clampedScale_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<double>("expected");

    QTest::newRow("inside") << -10.0 << -40.0 << 0.0 << 0.75;
    QTest::newRow("below") << -50.0 << -40.0 << 0.0 << 0.0;
    QTest::newRow("above") << 3.0 << -40.0 << 0.0 << 1.0;
    QTest::newRow("reversed, inside") << -10.0 << 0.0 << -40.0 << 0.25;
    QTest::newRow("reversed, below gives the first target") << -50.0 << 0.0 << -40.0 << 0.0;
    QTest::newRow("reversed, above gives the second target") << 3.0 << 0.0 << -40.0 << 1.0;
    QTest::newRow("empty range") << 0.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("NaN value") << notANumber << -40.0 << 0.0 << 0.0;
    QTest::newRow("NaN bound") << -10.0 << notANumber << 0.0 << 0.0;
    QTest::newRow("infinite value") << infinity << -40.0 << 0.0 << 1.0;
    QTest::newRow("infinite bound") << -10.0 << -infinity << 0.0 << 0.0;
    QTest::newRow("range wider than the numbers") << 0.0 << -1.7e308 << 1.7e308 << 0.0;
}

void tst_TransferCurves::clampedScale()
{
    QFETCH(double, value);
    QFETCH(double, from);
    QFETCH(double, to);
    QFETCH(double, expected);
    QCOMPARE(tamble::client::clampedScale(value, from, to, 0.0, 1.0), expected);
}

void tst_TransferCurves::curve_data()
{
    QTest::addColumn<CurvePoints>("actual");
    QTest::addColumn<CurvePoints>("expected");
    const CurvePoints none;
    const CurvePoints identity{{0.0, 1.0}, {1.0, 0.0}};

    QTest::newRow("limiter") << limiterCurve(limiter(-40, 0, -10)) << CurvePoints{{0, 1}, {0.75, 0.25}, {1, 0.25}};
    QTest::newRow("limiter, threshold above the plot")
        << limiterCurve(limiter(-40, 0, 5)) << CurvePoints{{0, 1}, {1, 0}, {1, 0}};
    QTest::newRow("limiter, NaN threshold")
        << limiterCurve(limiter(-40, 0, notANumber)) << CurvePoints{{0, 1}, {0, 1}, {1, 1}};
    QTest::newRow("limiter, bypassed") << limiterCurve(bypassed(limiter(-40, 0, -10))) << identity;
    QTest::newRow("limiter, inactive") << limiterCurve(inactive(limiter(-40, 0, -10))) << none;

    const CurvePoints agcPoints{{0, 1}, {0.375, 0.625}, {0.5, 0.375}, {0.75, 0.25}, {1, 0.125}};
    QTest::newRow("AGC") << agcCurve(agc(2, 0)) << agcPoints;
    QTest::newRow("AGC, the offset shifts curve and plot alike") << agcCurve(agc(2, 15)) << agcPoints;
    QTest::newRow("AGC, ratio 0 reaches the edges")
        << agcCurve(agc(0, 0)) << CurvePoints{{0, 1}, {0.375, 0.625}, {0.5, 1}, {0.75, 0.25}, {1, 0}};
    QTest::newRow("AGC, bypassed") << agcCurve(bypassed(agc(2, 0))) << identity;
    QTest::newRow("AGC, inactive") << agcCurve(inactive(agc(2, 0))) << none;

    QTest::newRow("ducker") << duckerCurve(ducker(-20, 12))
                            << CurvePoints{{0, 1}, {2 / 3.0, 1 / 3.0}, {2 / 3.0, 32 / 60.0}, {1, 0.2}};
    QTest::newRow("ducker, through the floor")
        << duckerCurve(ducker(-20, 50))
        << CurvePoints{{0, 1}, {2 / 3.0, 1 / 3.0}, {2 / 3.0, 1}, {5 / 6.0, 1}, {1, 5 / 6.0}};
    QTest::newRow("ducker, bypassed") << duckerCurve(bypassed(ducker(-20, 12))) << identity;
    QTest::newRow("ducker, inactive") << duckerCurve(inactive(ducker(-20, 12))) << none;

    QTest::newRow("gate") << gateCurve(gate(-30, 20)).value()
                          << CurvePoints{{1 / 3.0, 1}, {0.5, 5 / 6.0}, {0.5, 0.5}, {1, 0}};
    QTest::newRow("gate, nothing above the floor below the threshold")
        << gateCurve(gate(-30, 40)).value() << CurvePoints{{0.5, 1}, {0.5, 0.5}, {1, 0}};
    QTest::newRow("gate, depth 0") << gateCurve(gate(-30, 0)).value() << identity;
    QTest::newRow("gate, depth 0 goes before the bounds") << gateCurve(gate(-90, 0)).value() << identity;
    QTest::newRow("gate, bypass goes before the bounds") << gateCurve(bypassed(gate(-90, 20))).value() << identity;
    QTest::newRow("gate, inactive") << gateCurve(inactive(gate(-30, 20))).value() << none;

    QTest::newRow("ANC") << ancCurve(anc(1)) << CurvePoints{{0, 0.75}, {0.5, 0.75}, {0.75, 0.25}, {1, 0.25}};
    QTest::newRow("ANC, rise cut at the right edge")
        << ancCurve(anc(0.25)) << CurvePoints{{0, 0.75}, {0.5, 0.75}, {1, 0.5}};
    QTest::newRow("ANC, ratio 0 never rises") << ancCurve(anc(0)) << CurvePoints{{0, 0.75}, {0.5, 0.75}, {1, 0.75}};
    QTest::newRow("ANC, bypassed is flat at 0 dB") << ancCurve(bypassed(anc(1))) << CurvePoints{{0, 0.5}, {1, 0.5}};
    QTest::newRow("ANC, inactive") << ancCurve(inactive(anc(1))) << none;

    const CurvePoints hardKnee{{0, 1}, {2 / 3.0, 1 / 3.0}, {1, 0.25}};
    QTest::newRow("compressor") << compressorCurve(compressor(4, 0)) << hardKnee;
    QTest::newRow("compressor, negative knee is hard") << compressorCurve(compressor(4, 0, -6)) << hardKnee;
    QTest::newRow("compressor, ratio below 1 counts as 1")
        << compressorCurve(compressor(0.5, 0)) << CurvePoints{{0, 1}, {2 / 3.0, 1 / 3.0}, {1, 0}};
    QTest::newRow("compressor, NaN ratio counts as 1")
        << compressorCurve(compressor(notANumber, 0)) << CurvePoints{{0, 1}, {2 / 3.0, 1 / 3.0}, {1, 0}};
    QTest::newRow("compressor, infinite ratio limits")
        << compressorCurve(compressor(infinity, 0)) << CurvePoints{{0, 1}, {2 / 3.0, 1 / 3.0}, {1, 1 / 3.0}};
    QTest::newRow("compressor, gain crosses the top")
        << compressorCurve(compressor(4, 30)) << CurvePoints{{0, 0.5}, {0.5, 0}, {2 / 3.0, 0}, {1, 0}};
    QTest::newRow("compressor, gain crosses the bottom")
        << compressorCurve(compressor(4, -10)) << CurvePoints{{0, 1}, {1 / 6.0, 1}, {2 / 3.0, 0.5}, {1, 25 / 60.0}};
    QTest::newRow("compressor, empty range") << compressorCurve({.bypassed = false}) << identity;
    QTest::newRow("compressor, bypassed") << compressorCurve(bypassed(compressor(4, 30))) << identity;
    QTest::newRow("compressor, inactive") << compressorCurve(inactive(compressor(4, 30))) << none;
}

void tst_TransferCurves::curve()
{
    QFETCH(CurvePoints, actual);
    QFETCH(CurvePoints, expected);
    compare(actual, expected);
}

void tst_TransferCurves::gateOutOfBounds_data()
{
    QTest::addColumn<double>("threshold");
    QTest::addColumn<double>("depth");
    QTest::newRow("threshold below") << -61.0 << 20.0;
    QTest::newRow("threshold above") << 1.0 << 20.0;
    QTest::newRow("depth below") << -30.0 << -1.0;
    QTest::newRow("depth above") << -30.0 << 61.0;
}

void tst_TransferCurves::gateOutOfBounds()
{
    QFETCH(double, threshold);
    QFETCH(double, depth);
    QVERIFY(!gateCurve(gate(threshold, depth)));
}

void tst_TransferCurves::softKnee()
{
    const CurvePoints points = compressorCurve(compressor(4, 0, 12));
    QCOMPARE(points.size(), 19);
    compare({points[1], points[17]}, {{34 / 60.0, 26 / 60.0}, {46 / 60.0, 18.5 / 60.0}});
    compare({points[9]}, {{40 / 60.0, 21.125 / 60.0}});
}

void tst_TransferCurves::kneeMeetsBothParts()
{
    // A 12 dB knee around -20 dB, 4 : 1; slope 1 below it and 1/4 above it.
    const CompressorParameters p = compressor(4, 3, 12);
    constexpr double small = 1e-4;
    for (const auto &[edge, output, slope] : {std::tuple(-26.0, -23.0, 1.0), std::tuple(-14.0, -15.5, 0.25)}) {
        QCOMPARE(compressorOutput(p, edge), output);
        QVERIFY(std::abs((compressorOutput(p, edge) - compressorOutput(p, edge - small)) / small - slope) < 1e-4);
        QVERIFY(std::abs((compressorOutput(p, edge + small) - compressorOutput(p, edge)) / small - slope) < 1e-4);
    }
}

template struct TestClass<tst_TransferCurves>;
#include "tst_TransferCurves.moc"
