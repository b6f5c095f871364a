#include "dynamics/CompressorCurve.h"
#include "dynamics/TransferCurves.h"
#include "dynamics/TransferScale.h"
#include "support/Numbers.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

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
    void clampedScale_data()
    {
        const auto row = rowsOf([](double value, double from, double to, double expected) {
            QCOMPARE(tamble::client::clampedScale(value, from, to, 0.0, 1.0), expected);
        });
        row("inside", -10.0, -40.0, 0.0, 0.75);
        row("below", -50.0, -40.0, 0.0, 0.0);
        row("above", 3.0, -40.0, 0.0, 1.0);
        row("reversed, below gives the first target", -50.0, 0.0, -40.0, 0.0);
        row("reversed, above gives the second target", 3.0, 0.0, -40.0, 1.0);
        row("empty range", 0.0, 0.0, 0.0, 0.0);
        row("NaN value", notANumber, -40.0, 0.0, 0.0);
        row("NaN bound", -10.0, notANumber, 0.0, 0.0);
        row("infinite value", infinity, -40.0, 0.0, 1.0);
        row("infinite bound", -10.0, -infinity, 0.0, 0.0);
        row("range wider than the numbers", 0.0, -1.7e308, 1.7e308, 0.0);
    }
    void clampedScale() { checkRow(); }

    void curve_data()
    {
        const auto row =
            rowsOf([](const CurvePoints &actual, const CurvePoints &expected) { compare(actual, expected); });
        const CurvePoints none;
        const CurvePoints identity{{0.0, 1.0}, {1.0, 0.0}};

        row("limiter", limiterCurve(limiter(-40, 0, -10)), {{0, 1}, {0.75, 0.25}, {1, 0.25}});
        row("limiter, threshold above the plot", limiterCurve(limiter(-40, 0, 5)), {{0, 1}, {1, 0}, {1, 0}});
        row("limiter, NaN threshold", limiterCurve(limiter(-40, 0, notANumber)), {{0, 1}, {0, 1}, {1, 1}});
        row("limiter, bypassed", limiterCurve(bypassed(limiter(-40, 0, -10))), identity);
        row("limiter, inactive", limiterCurve(inactive(limiter(-40, 0, -10))), none);

        const CurvePoints agcPoints{{0, 1}, {0.375, 0.625}, {0.5, 0.375}, {0.75, 0.25}, {1, 0.125}};
        row("AGC", agcCurve(agc(2, 0)), agcPoints);
        row("AGC, the offset shifts curve and plot alike", agcCurve(agc(2, 15)), agcPoints);
        row("AGC, ratio 0 reaches the edges", agcCurve(agc(0, 0)),
            {{0, 1}, {0.375, 0.625}, {0.5, 1}, {0.75, 0.25}, {1, 0}});
        row("AGC, bypassed", agcCurve(bypassed(agc(2, 0))), identity);
        row("AGC, inactive", agcCurve(inactive(agc(2, 0))), none);

        row("ducker", duckerCurve(ducker(-20, 12)), {{0, 1}, {2 / 3.0, 1 / 3.0}, {2 / 3.0, 32 / 60.0}, {1, 0.2}});
        row("ducker, through the floor", duckerCurve(ducker(-20, 50)),
            {{0, 1}, {2 / 3.0, 1 / 3.0}, {2 / 3.0, 1}, {5 / 6.0, 1}, {1, 5 / 6.0}});
        row("ducker, bypassed", duckerCurve(bypassed(ducker(-20, 12))), identity);
        row("ducker, inactive", duckerCurve(inactive(ducker(-20, 12))), none);

        row("gate", gateCurve(gate(-30, 20)).value(), {{1 / 3.0, 1}, {0.5, 5 / 6.0}, {0.5, 0.5}, {1, 0}});
        row("gate, nothing above the floor below the threshold", gateCurve(gate(-30, 40)).value(),
            {{0.5, 1}, {0.5, 0.5}, {1, 0}});
        row("gate, depth 0", gateCurve(gate(-30, 0)).value(), identity);
        row("gate, depth 0 goes before the bounds", gateCurve(gate(-90, 0)).value(), identity);
        row("gate, bypass goes before the bounds", gateCurve(bypassed(gate(-90, 20))).value(), identity);
        row("gate, inactive", gateCurve(inactive(gate(-30, 20))).value(), none);

        row("ANC", ancCurve(anc(1)), {{0, 0.75}, {0.5, 0.75}, {0.75, 0.25}, {1, 0.25}});
        row("ANC, rise cut at the right edge", ancCurve(anc(0.25)), {{0, 0.75}, {0.5, 0.75}, {1, 0.5}});
        row("ANC, ratio 0 never rises", ancCurve(anc(0)), {{0, 0.75}, {0.5, 0.75}, {1, 0.75}});
        row("ANC, bypassed is flat at 0 dB", ancCurve(bypassed(anc(1))), {{0, 0.5}, {1, 0.5}});
        row("ANC, inactive", ancCurve(inactive(anc(1))), none);

        const CurvePoints hardKnee{{0, 1}, {2 / 3.0, 1 / 3.0}, {1, 0.25}};
        row("compressor", compressorCurve(compressor(4, 0)), hardKnee);
        row("compressor, negative knee is hard", compressorCurve(compressor(4, 0, -6)), hardKnee);
        row("compressor, ratio below 1 counts as 1", compressorCurve(compressor(0.5, 0)),
            {{0, 1}, {2 / 3.0, 1 / 3.0}, {1, 0}});
        row("compressor, NaN ratio counts as 1", compressorCurve(compressor(notANumber, 0)),
            {{0, 1}, {2 / 3.0, 1 / 3.0}, {1, 0}});
        row("compressor, infinite ratio limits", compressorCurve(compressor(infinity, 0)),
            {{0, 1}, {2 / 3.0, 1 / 3.0}, {1, 1 / 3.0}});
        row("compressor, gain crosses the top", compressorCurve(compressor(4, 30)),
            {{0, 0.5}, {0.5, 0}, {2 / 3.0, 0}, {1, 0}});
        row("compressor, gain crosses the bottom", compressorCurve(compressor(4, -10)),
            {{0, 1}, {1 / 6.0, 1}, {2 / 3.0, 0.5}, {1, 25 / 60.0}});
        row("compressor, empty range", compressorCurve({.bypassed = false}), identity);
        row("compressor, bypassed", compressorCurve(bypassed(compressor(4, 30))), identity);
        row("compressor, inactive", compressorCurve(inactive(compressor(4, 30))), none);
    }
    void curve() { checkRow(); }

    void gateOutOfBounds_data()
    {
        const auto row = rowsOf([](double threshold, double depth) { QVERIFY(!gateCurve(gate(threshold, depth))); });
        row("threshold below", -61.0, 20.0);
        row("threshold above", 1.0, 20.0);
        row("depth below", -30.0, -1.0);
        row("depth above", -30.0, 61.0);
    }
    void gateOutOfBounds() { checkRow(); }

    void softKnee()
    {
        const CurvePoints points = compressorCurve(compressor(4, 0, 12));
        QCOMPARE(points.size(), 19);
        compare({points[1], points[17]}, {{34 / 60.0, 26 / 60.0}, {46 / 60.0, 18.5 / 60.0}});
        compare({points[9]}, {{40 / 60.0, 21.125 / 60.0}});
    }

    void kneeMeetsBothParts()
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
};

template struct TestClass<tst_TransferCurves>;
#include "tst_TransferCurves.moc"
