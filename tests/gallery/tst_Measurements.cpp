#include "BlockLevels.h"
#include "DynamicsChain.h"
#include "FilterBank.h"
#include "Spectrum.h"
#include "TestSignals.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <limits>

namespace {

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

bool isNear(double actual, double expected, double tolerance)
{
    if (std::abs(actual - expected) <= tolerance)
        return true;
    qDebug() << "actual" << actual << "expected" << expected;
    return false;
}

StaticCurve levelCurve(const QList<QPointF> &points, double minimum, double maximum)
{
    return {points, minimum, maximum, minimum, maximum, StaticCurve::Meaning::OutputLevel};
}

} // namespace

class tst_Measurements : public QObject
{
    Q_OBJECT
    using Sections = std::vector<BiquadCoefficients>;

private Q_SLOTS:
    void blockLevels_data()
    {
        const auto row = rowsOf([](const std::vector<float> &samples, double peak, double rms) {
            BlockLevel level;
            measureLevels(samples, {&level, 1});
            QVERIFY(isNear(level.peak, peak, 0.01));
            QVERIFY(isNear(level.rms, rms, 0.01));
        });
        row("full-scale sine", sine(1.0, 1000.0, 48000.0, 2400), 0.0, -3.01);
        row("negative direct current", std::vector<float>(100, -0.5F), -6.02, -6.02);
        row("one sample of four, beyond full scale", {0.0F, 2.0F, 0.0F, 0.0F}, 6.02, 0.0);
        row("below the floor", std::vector<float>(100, 1e-7F), -120.0, -120.0);
        row("nothing", {}, -120.0, -120.0);
        row("not numbers", {notANumber, 0.5F, -infinity, -0.5F}, -6.02, -9.03);
    }
    void blockLevels() { checkRow(); }

    void channelsAreApart()
    {
        const std::vector<float> samples{1.0F, 0.1F, 0.0F, -1.0F, 0.0F, 0.0F};
        std::vector<BlockLevel> levels(3);
        measureLevels(samples, levels);
        QCOMPARE(levels[0].peak, 0.0);
        QVERIFY(isNear(levels[1].peak, -20.0, 0.01));
        QVERIFY(isNear(levels[1].rms, -23.01, 0.01));
        QCOMPARE(levels[2].peak, -120.0);
    }

    void staticGain_data()
    {
        const StaticCurve limiter = levelCurve({{0.0, 1.0}, {0.75, 0.25}, {1.0, 0.25}}, -40.0, 0.0);
        const StaticCurve compressor = levelCurve({{0.0, 1.0}, {0.5, 0.5}, {1.0, 0.25}}, -80.0, 0.0);
        // Threshold −20, ducking level 20; threshold −30, depth 20; both within −60…0.
        const StaticCurve ducker =
            levelCurve({{0.0, 1.0}, {2.0 / 3.0, 1.0 / 3.0}, {2.0 / 3.0, 2.0 / 3.0}, {1.0, 1.0 / 3.0}}, -60.0, 0.0);
        const StaticCurve gate = levelCurve({{1.0 / 3.0, 1.0}, {0.5, 5.0 / 6.0}, {0.5, 0.5}, {1.0, 0.0}}, -60.0, 0.0);
        // The same lowered by 50 instead, which is below the plot for part of the way.
        StaticCurve deepDucker = levelCurve(
            {{0.0, 1.0}, {2.0 / 3.0, 1.0 / 3.0}, {2.0 / 3.0, 1.0}, {5.0 / 6.0, 1.0}, {1.0, 5.0 / 6.0}}, -60.0, 0.0);
        deepDucker.floorGain = -50.0;
        StaticCurve deepGate = levelCurve({{0.5, 1.0}, {0.5, 0.5}, {1.0, 0.0}}, -60.0, 0.0);
        deepGate.floorGain = -50.0;
        // Gain −10 up to an ambient level of −40, then 1 dB per dB up to +10.
        const StaticCurve ambience = {
            {{0.0, 0.75}, {0.5, 0.75}, {0.75, 0.25}, {1.0, 0.25}}, -80.0, 0.0, -20.0, 20.0, StaticCurve::Meaning::Gain};

        const auto row = rowsOf([](const StaticCurve &curve, double input, double gain) {
            QVERIFY(isNear(curve.gain(input), gain, 1e-9));
        });
        row("limiter above", limiter, -4.0, -6.0);
        row("limiter beyond the plot", limiter, 6.0, -16.0);
        row("compressor between points", compressor, -20.0, -10.0);
        row("compressor goes on with its slope", compressor, 20.0, -30.0);
        row("ducker above", ducker, -10.0, -20.0);
        row("gate closed, not drawn", gate, -100.0, -20.0);
        row("gate open", gate, -10.0, 0.0);
        row("deep ducker on the floor", deepDucker, -15.0, -50.0);
        row("deep gate closed", deepGate, -30.0, -50.0);
        row("deep gate closed, not drawn", deepGate, -100.0, -50.0);
        row("gain curve, low", ambience, -120.0, -10.0);
        row("gain curve, rise", ambience, -30.0, 0.0);
        row("gain curve, beyond the plot", ambience, 30.0, 10.0);
        row("no points", levelCurve({}, -60.0, 0.0), -10.0, 0.0);
        row("empty range", levelCurve({{0.0, 1.0}, {1.0, 1.0}}, 0.0, 0.0), -10.0, 0.0);
        row("point is no number", levelCurve({{0.0, 1.0}, {1.0, notANumber}}, -60.0, 0.0), -10.0, 0.0);
    }
    void staticGain() { checkRow(); }

    void detectorFollows()
    {
        DynamicsChain chain(1000.0);
        chain.setSettings({{}, 100.0, 50.0, 0.0});
        const std::vector<float> loud(100, 1.0F);
        const std::vector<float> silent(99, 0.0F);
        // One time constant: 1 − 1/e of the way up, then 1/e of that after two falls of half the length.
        QVERIFY(isNear(chain.process(loud, 1, 0).inputLevel, -3.98, 0.01));
        chain.process(silent, 1, 0);
        QVERIFY(isNear(chain.process(std::vector<float>(1, 0.0F), 1, 0).inputLevel, -3.98 - 2.0 * 8.686, 0.01));
        chain.reset();
        QCOMPARE(chain.process(silent, 1, 0).inputLevel, -120.0);
    }

    void dynamicsReading()
    {
        DynamicsChain chain(48000.0);
        const StaticCurve limiter = levelCurve({{0.0, 1.0}, {0.5, 0.5}, {1.0, 0.5}}, -60.0, 20.0);
        chain.setSettings({limiter, 0.0, 0.0, 20.0});
        // Full scale is 20 dBu, so a tenth of it is 0 dBu, 20 above the threshold. The other channel is not heard.
        const DynamicsReading reading = chain.process(std::vector<float>{1.0F, 0.1F, notANumber, -0.1F}, 2, 1);
        QVERIFY(isNear(reading.inputLevel, 0.0, 1e-6));
        QVERIFY(isNear(reading.outputLevel, -20.0, 1e-6));
        QVERIFY(isNear(reading.gain, -20.0, 1e-6));
    }

    void filterSections_data()
    {
        const BiquadCoefficients mean{0.5, 0.5, 0.0, 0.0, 0.0};
        const BiquadCoefficients decay{1.0, 0.0, 0.0, -0.5, 0.0};
        const std::vector<float> impulse{1.0F, 0.0F, 0.0F, 0.0F};

        const auto row =
            rowsOf([](const Sections &sections, std::vector<float> samples, const std::vector<float> &output) {
                FilterBank bank;
                bank.setSections(sections);
                bank.process(samples);
                QCOMPARE(samples, output);
            });
        row("all of b", {{0.5, 0.25, 2.0, 0.0, 0.0}}, impulse, {0.5F, 0.25F, 2.0F, 0.0F});
        row("all of a", {{1.0, 0.0, 0.0, -0.5, 0.25}}, impulse, {1.0F, 0.5F, 0.0F, -0.125F});
        row("cascade", {mean, decay}, impulse, {0.5F, 0.75F, 0.375F, 0.1875F});
        row("unstable passes on", {{1.0, 0.0, 0.0, 0.0, 1.0}, mean}, impulse, {0.5F, 0.5F, 0.0F, 0.0F});
        row("samples that are no numbers", {decay}, {1.0F, notANumber, infinity, 0.0F}, {1.0F, 0.5F, 0.25F, 0.125F});
    }
    void filterSections() { checkRow(); }

    void tuningKeepsTheMemory()
    {
        FilterBank bank;
        bank.setSections(std::vector<BiquadCoefficients>{{1.0, 0.0, 0.0, -0.5, 0.0}});
        std::vector<float> samples{1.0F};
        bank.process(samples);
        bank.setSections(std::vector<BiquadCoefficients>{{1.0, 0.0, 0.0, -0.25, 0.0}});
        samples = {0.0F, 0.0F};
        bank.process(samples);
        QCOMPARE(samples, (std::vector<float>{0.5F, 0.125F}));
        bank.reset();
        bank.process(samples = {0.0F});
        QCOMPARE(samples.front(), 0.0F);
    }

    void spectrumOfASine_data()
    {
        // Bins are 48000 / 8192 = 5.859 Hz apart; band 34 is centred at 1002 Hz, band 5 at 35.6 Hz.
        const Rows<double, double, std::size_t, double, double> row;
        row("on a bin", 48000.0, 996.09375, 34, -6.02, 0.01);
        row("between two bins", 48000.0, 999.0234375, 34, -6.02 - 1.42, 0.02);
        row("other sample rate", 8000.0, 1000.0, 34, -6.02, 0.01);
    }

    void spectrumOfASine()
    {
        const auto &[sampleRate, frequencyHz, band, level, tolerance] =
            Rows<double, double, std::size_t, double, double>::current();
        Spectrum spectrum(sampleRate);
        spectrum.setAveragingMs(0.0);
        spectrum.process(sine(0.5, frequencyHz, sampleRate, std::size_t(sampleRate)));

        const std::vector<double> levels = spectrum.levels();
        QCOMPARE(levels.size(), std::size_t(61));
        QVERIFY(isNear(levels[band], level, tolerance));
        for (std::size_t i = 0; i < levels.size(); ++i) {
            const bool apart = i + 10 < band || i > band + 3;
            QVERIFY2(!apart || levels[i] < -60.0, qPrintable(QStringLiteral("band %1: %2").arg(i).arg(levels[i])));
            if (Spectrum::centreHz(i) > 0.6 * sampleRate)
                QCOMPARE(levels[i], -120.0);
        }
        spectrum.reset();
        QCOMPARE(spectrum.levels()[band], -120.0);
    }

    void spectrumAverages()
    {
        Spectrum spectrum(48000.0);
        spectrum.setAveragingMs(0.0);
        spectrum.process(sine(1.0, 996.09375, 48000.0, 48000));
        // Silence for one time constant takes the power down by 1/e, once the window holds nothing else.
        spectrum.setAveragingMs(1000.0);
        spectrum.process(std::vector<float>(48000, 0.0F));
        QVERIFY(isNear(spectrum.levels()[34], -4.34, 0.02));
    }
};

template struct TestClass<tst_Measurements>;
#include "tst_Measurements.moc"
