#include "libs/ResponseSupport.h"
#include "support/Numbers.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <tamblecommon-math/ScaleMappings.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <memory>

using namespace tamble::common;

namespace {

constexpr double floorLevel = -240;
constexpr double nearDc = 1e-9;
constexpr double nyquist = 24000;

bool isNear(double a, double b, double tolerance)
{
    return std::abs(a - b) <= tolerance;
}

double levelOf(std::complex<double> value)
{
    return 20 * std::log10(std::abs(value));
}

double largestLevel(CalculationItem &record)
{
    auto block = blockOf({&record});
    evaluate(block);
    return *std::max_element(block.results.aggregated.magnitude.begin(), block.results.aggregated.magnitude.end());
}

// A band of equal corner qualities without overshoot.
AsymmetricEqFilter asymmetricBand(double lower, double upper, double gain)
{
    AsymmetricEqFilter filter;
    filter.freq = lower;
    filter.freq2 = upper;
    filter.gain = gain;
    filter.quality = filter.quality2 = std::numbers::sqrt2 / 2;
    return filter;
}

} // namespace

// What the responses have to be by their meaning, beside their figures in tst_FilterResponseReference.
class tst_FilterResponse : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Those that the reference leaves out.
    void slopes_data()
    {
        const auto row = rowsOf([](int type, int slope, const QList<double> &levels) {
            EqFilter filter = eqBand(type, 48, 12, 2, slope);
            const double frequencies[] = {nearDc, 48.0, nyquist};
            for (int i = 0; i < 3; ++i)
                QVERIFY2(isNear(responseAt(filter, frequencies[i]).level, levels[i], 1e-4),
                         qPrintable(QString::number(i)));
        });
        row("low shelf 6 dB", 1, 1, {12.0, 6.0, 0.0});
        row("high shelf without slope", 2, 0, {0.0, 6.0, 12.0});
        row("high pass without slope", 3, 0, {-213.6248, -3.0103, 0.0});
        row("low pass 6 dB", 4, 1, {0.0, -3.0103, floorLevel});
        row("all pass without slope", 5, 0, {0.0, 0.0, 0.0});
    }
    void slopes() { checkRow(); }

    void allPassPhase()
    {
        EqFilter first = eqBand(5, 1000, 0, 4, 1);
        EqFilter second = eqBand(5, 1000, 0, 4, 2);
        QVERIFY(isNear(responseAt(first, 1000).phase, -90, 1e-9));
        QVERIFY(isNear(std::abs(responseAt(second, 1000).phase), 180, 1e-9));

        // The level is 0 by construction, not by rounding.
        auto block = blockOf({&first, &second});
        evaluate(block);
        const std::vector<double> &level = block.results.aggregated.magnitude;
        QVERIFY(std::all_of(level.begin(), level.end(), [](double value) { return value == 0; }));
    }

    void asymmetricPlateau_data()
    {
        const auto row = rowsOf([](double upper, double maximum) {
            AsymmetricEqFilter filter = asymmetricBand(100, upper, 12);
            QVERIFY(isNear(largestLevel(filter), maximum, 0.01));
            QVERIFY(isNear(responseAt(filter, nearDc).level, 0, 1e-9));
            QVERIFY(isNear(responseAt(filter, nyquist).level, 0, 1e-9));
        });
        row("equal corners", 100.0, 0.0);
        row("1 octave", 200.0, 6.53);
        row("4 octaves", 1600.0, 11.88);
    }
    void asymmetricPlateau() { checkRow(); }

    void asymmetricBandIsSmooth()
    {
        AsymmetricEqFilter filter = asymmetricBand(200, 3000, 12);
        filter.quality2 = 4;
        AsymmetricEqFilter swapped = filter;
        std::swap(swapped.freq, swapped.freq2);
        std::swap(swapped.quality, swapped.quality2);
        auto block = blockOf({&filter, &swapped});
        evaluate(block);
        const std::vector<double> &level = block.results.items[0].magnitude;
        QCOMPARE(level, block.results.items[1].magnitude);
        for (std::size_t i = 1; i < level.size(); ++i)
            QVERIFY(isNear(level[i], level[i - 1], 0.1));
        // Half the gain at each corner, as they are far apart.
        AsymmetricEqFilter wide = asymmetricBand(200, 3000, 12);
        QVERIFY(isNear(responseAt(wide, 200).level, 6, 0.001));
        QVERIFY(isNear(responseAt(wide, 3000).level, 6, 0.001));
    }

    void crossoverSums_data()
    {
        const auto row = rowsOf([](int type, double sign) {
            XOverFilter low = crossover(type, false);
            XOverFilter high = crossover(type, true);
            for (double frequency : {20.0, 300.0, 900.0, 1000.0, 1100.0, 4000.0, 20000.0})
                QVERIFY(isNear(levelOf(responseAt(low, frequency).value() + sign * responseAt(high, frequency).value()),
                               0, 1e-9));
        });
        row("6 dB, sum", 1, 1.0);
        row("Linkwitz-Riley 12, difference", 12, -1.0);
        row("Butterworth 18, sum", 14, 1.0);
        row("Butterworth 18, difference", 14, -1.0);
        row("Linkwitz-Riley 24, sum", 17, 1.0);
    }
    void crossoverSums() { checkRow(); }

    void minimumPhaseKeepsMagnitude()
    {
        for (int type : {0, 1, 2}) {
            FIRFilter linear = fir(type);
            FIRFilter minimum = fir(type + 3);
            auto block = blockOf({&linear, &minimum});
            evaluate(block);
            const std::vector<double> &expected = block.results.items[0].magnitude;
            const std::vector<double> &level = block.results.items[1].magnitude;
            for (std::size_t i = 0; i < level.size(); ++i)
                if (expected[i] > -40)
                    QVERIFY(isNear(level[i], expected[i], expected[i] > -6 ? 1e-3 : 1e-2));
            // A low pass of so many taps has a delay of 256 samples; minimum phase leaves next to none of it.
            if (type == 0)
                QVERIFY(std::abs(responseAt(minimum, 1000).phase) < 45);
        }
    }

    void lists_data()
    {
        // level: At a quarter of the rate.
        const auto row = rowsOf([](const QList<double> &taps, int order, double level, double phase) {
            // Design types take their list when they are told to.
            for (int type : {255, 123, 39, 67, 17, 2}) {
                FIRFilter filter = fir(type, order);
                filter.generateCoefficients = false;
                filter.coefficients.assign(taps.begin(), taps.end());
                const PointResponse response = responseAt(filter, 12000);
                QVERIFY(isNear(response.level, level, 1e-9));
                QVERIFY(isNear(response.phase, phase, 1e-9));
            }
        });
        row("no taps pass", {}, 512, 0.0, 0.0);
        row("order 0 passes", {0.5, 0.5}, 0, 0.0, 0.0);
        row("zeros are silent", {0, 0}, 2, floorLevel, 0.0);
        row("gain and inversion", {-10}, 512, 20.0, 180.0);
        row("delay by one", {0, 1}, 512, 0.0, -90.0);
        row("delay by 401", (QList<double>(401, 0.0) << 1), 512, 0.0, -90.0);
        row("mean of two", {0.5, 0.5}, 512, -3.010299957, -45.0);
        row("entries beyond the order", {1, 0, 5, 5}, 2, 0.0, 0.0);
        row("entries that are not finite", {1, notANumber, infinity}, 3, 0.0, 0.0);
    }
    void lists() { checkRow(); }

    void headers_data()
    {
        const auto row =
            rowsOf([](int type, int order, double firstTap, const QByteArray &before, const QByteArray &after) {
                FIRFilter filter = fir(type, order);
                filter.bypass = true; // A header is written all the same.
                filter.freqHP = 1600.1234;
                filter.coefficients.front() = firstTap;
                filter.header = before.toStdString();
                responseAt(filter, 1000);
                QCOMPARE(filter.header, after.toStdString());
            });
        const QByteArray prefix = "VELA-Net FIR-Filter=";
        row("low pass", 0, 512, 1.0, prefix + "Thru", prefix + "LoPass 16000 Hz, 512 taps");
        row("high pass", 1, 3, 1.0, {}, prefix + "HiPass 1600.12 Hz, 3 taps");
        row("band pass over own text", 2, 64, 1.0, "mine", prefix + "BandPass 1600.12-16000 Hz, 64 taps");
        row("minimum phase", 5, 512, 1.0, prefix + "User", prefix + "MinPhase BandPass 1600.12-16000 Hz, 512 taps");
        row("most taps", 0, 100000, 1.0, {}, prefix + "LoPass 16000 Hz, 32768 taps");
        row("too few taps", 4, 2, 1.0, prefix + "User", prefix + "Thru");
        row("unit impulse", 255, 512, 1.0, prefix + "LoPass 1 Hz, 8 taps", prefix + "Thru");
        row("other taps", 17, 512, 0.5, prefix + "Thru", prefix + "User");
        row("own text stays", 17, 512, 0.5, "mine", "mine");
        row("own text behind the prefix stays", 17, 512, 1.0, prefix + "Hall 2", prefix + "Hall 2");
    }
    void headers() { checkRow(); }

    void bypassAndUnknownTypesAreFlat()
    {
        struct Unknown : CalculationItem
        {
        } unknown;
        EqFilter bypassed = eqBand(0, 1000, 12);
        bypassed.bypass = true;
        EqFilter noType = eqBand(12, 1000, 12);
        EqFilter noGain = eqBand(10, 1000, 0);
        XOverFilter noCrossover = crossover(18, true);
        XOverFilter through = crossover(0, false);
        auto block = blockOf({nullptr, &unknown, &bypassed, &noType, &noGain, &noCrossover, &through}, 3);
        evaluate(block);
        for (const FilterResponse &curve : block.results.items) {
            QCOMPARE(curve.magnitude, std::vector<double>(3, 0.0));
            QCOMPARE(curve.phase, std::vector<double>(3, 0.0));
        }
    }

    void rangeEdges()
    {
        EqFilter filter = eqBand(2, 15000, 12);
        auto block = blockOf({&filter}, 5);
        block.lowestFrequency = 6000;
        block.highestFrequency = 96000; // An octave a point; half the rate is the third.
        evaluate(block);
        std::vector<double> level = block.results.aggregated.magnitude;
        QCOMPARE(level[0], responseAt(filter, 6000).level);
        QVERIFY(isNear(level[1], responseAt(filter, 12000).level, 1e-12));
        QVERIFY(isNear(level[2], 12, 1e-12));
        QCOMPARE(level[3], level[4]);

        std::swap(block.lowestFrequency, block.highestFrequency);
        evaluate(block);
        std::reverse(level.begin(), level.end());
        for (std::size_t i = 0; i < level.size(); ++i)
            QVERIFY(isNear(block.results.aggregated.magnitude[i], level[i], 1e-12));

        for (auto [resolution, size] : {std::pair{0, 0}, {-5, 0}, {2000000, 1048576}}) {
            block.resolution = resolution;
            evaluate(block);
            QCOMPARE(block.results.items.front().phase.size(), std::size_t(size));
            QCOMPARE(block.results.aggregated.magnitude.size(), std::size_t(size));
        }
    }

    void limits_data()
    {
        const auto row = rowsOf([](EqFilter given, EqFilter meant) {
            for (double frequency : {0.02, 20.0, 23500.0})
                QCOMPARE(responseAt(given, frequency).level, responseAt(meant, frequency).level);
        });
        row("NaN", eqBand(0, notANumber, 6, notANumber), eqBand(0, 20, 6, 1));
        row("NaN gain", eqBand(0, 50, notANumber), eqBand(0, 50, 0));
        row("frequency above the rate", eqBand(4, 1e9, 0), eqBand(4, 0.499 * 48000, 0));
        row("negative frequency", eqBand(4, -5, 0), eqBand(4, 0.01, 0));
        row("Q 0", eqBand(0, 50, 6, 0), eqBand(0, 50, 6, 0.05));
        row("infinite Q and gain", eqBand(0, 50, infinity, infinity), eqBand(0, 50, 120, 1000));
    }
    void limits() { checkRow(); }

    void everythingIsFinite_data()
    {
        const Rows<double> row;
        row("NaN", notANumber);
        row("infinite", infinity);
        row("negative infinite", -infinity);
        row("largest", std::numeric_limits<double>::max());
        row("smallest", std::numeric_limits<double>::denorm_min());
        row("zero", 0.0);
        row("negative", -1000.0);
        row("one", 1.0);
    }

    void everythingIsFinite()
    {
        const auto &[value] = Rows<double>::current();
        std::vector<std::unique_ptr<CalculationItem>> records;
        for (int type = -1; type < 14; ++type) {
            for (int slope : {-1, 0, 1, 2}) {
                records.push_back(std::make_unique<EqFilter>(eqBand(type, value, 12, 1, slope)));
                records.push_back(std::make_unique<EqFilter>(eqBand(type, 1000, value, value, slope)));
            }
        }
        for (int type = -1; type < 19; ++type)
            for (bool highPass : {false, true})
                records.push_back(std::make_unique<XOverFilter>(crossover(type, highPass, value)));
        auto asymmetric = std::make_unique<AsymmetricEqFilter>(asymmetricBand(value, 500, 12));
        asymmetric->quality2 = value;
        records.push_back(std::move(asymmetric));
        for (int type = 0; type < 7; ++type) {
            auto filter = std::make_unique<FIRFilter>(fir(type, 9));
            filter->freqHP = filter->freqLP = value;
            filter->coefficients = {value, 1, value};
            records.push_back(std::move(filter));
        }

        BodePlotCalculation block;
        for (const auto &record : records)
            block.items.push_back(record.get());
        block.resolution = 50;
        std::vector<double> level;
        const double ranges[][3] = {{20, 20000, 48000}, {value, 20000, 48000}, {20, value, 48000},  {20, 20000, value},
                                    {1e-300, 1e300, 1}, {20, 20000, 1e308},    {5e-324, 1e308, 1e9}};
        for (const auto &[lowest, highest, rate] : ranges) {
            block.lowestFrequency = lowest;
            block.highestFrequency = highest;
            block.sampleRate = rate;
            evaluate(block);
            FilterAlgorithm::calculateAggregatedLevel(block, level);
            block.results.items.push_back(block.results.aggregated);
            block.results.items.push_back({level, {}});
            for (const FilterResponse &curve : block.results.items) {
                QVERIFY(std::all_of(curve.magnitude.begin(), curve.magnitude.end(),
                                    [](double db) { return db >= -240 && db <= 240; }));
                QVERIFY(std::all_of(curve.phase.begin(), curve.phase.end(),
                                    [](double degrees) { return degrees > -180 && degrees <= 180; }));
            }
        }
    }
};

template struct TestClass<tst_FilterResponse>;
#include "tst_FilterResponse.moc"
