#include "libs/ResponseSupport.h"
#include "support/AllocationCount.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <algorithm>
#include <functional>

using namespace tamble::common;

namespace {

// One record of every kind, at a resolution that is no multiple of the kernels' blocks; `times` over, for a block with
// more records than one sum is made of.
struct Mixture
{
    EqFilter peak = eqBand(0, 1000, 12, 3);
    EqFilter allPass = eqBand(5, 300, 0, 2);
    EqFilter flat = eqBand(0, 1000, 0);
    AsymmetricEqFilter asymmetric;
    XOverFilter highPass = crossover(17, true, 80);
    FIRFilter linear = fir(0, 200);
    FIRFilter minimum = fir(4, 100);
    FIRFilter list = fir(255, 40);
    BodePlotCalculation block;

    explicit Mixture(std::size_t times = 1)
    {
        asymmetric.freq2 = 4000;
        asymmetric.gain = -9;
        list.coefficients.assign(40, 0.1);
        block = blockOf({&peak, &allPass, &flat, &asymmetric, &highPass, &linear, &minimum, &list, nullptr}, 1000);
        const std::vector<CalculationItem *> once = block.items;
        for (std::size_t i = 1; i < times; ++i)
            block.items.insert(block.items.end(), once.begin(), once.end());
    }

    void change(double amount)
    {
        peak.gain += amount;
        allPass.freq += amount;
        flat.gain += amount;
        asymmetric.quality += amount;
        highPass.freq += amount;
        linear.freqLP += amount;
        minimum.freqHP += amount;
        list.coefficients[3] += amount;
    }
};

void single(BodePlotCalculation &block, unsigned index)
{
    FilterAlgorithm::calculateBodePlotLogarithmic(block, true, index);
}

bool equal(const FilterResponse &a, const FilterResponse &b)
{
    return a.magnitude == b.magnitude && a.phase == b.phase;
}

bool equal(const BodePlotCalculationResults &a, const BodePlotCalculationResults &b)
{
    return equal(a.aggregated, b.aggregated) &&
           std::equal(a.items.begin(), a.items.end(), b.items.begin(), b.items.end(),
                      [](const FilterResponse &x, const FilterResponse &y) { return equal(x, y); });
}

// The results of a block that has never been evaluated.
BodePlotCalculationResults freshResults(const BodePlotCalculation &block)
{
    BodePlotCalculation fresh = block;
    fresh.results = {};
    evaluate(fresh);
    return fresh.results;
}

} // namespace

// What is kept from one evaluation of a block to the next.
class tst_FilterResponseBlock : public QObject
{
    Q_OBJECT
    using Change = std::function<void(Mixture &)>;

private Q_SLOTS:
    void singleEqualsFull_data() { times(); }
    void singleEqualsFull()
    {
        QFETCH(std::size_t, times);
        Mixture mixture(times);
        evaluate(mixture.block);
        for (double amount : {0.25, -0.5, 1.0}) {
            mixture.change(amount);
            for (unsigned i = 0; i < mixture.block.items.size(); ++i)
                single(mixture.block, i);
            QVERIFY(equal(mixture.block.results, freshResults(mixture.block)));
        }
        // Neither do curves of records that were skipped as unchanged.
        mixture.peak.gain += 1;
        evaluate(mixture.block);
        evaluate(mixture.block);
        QVERIFY(equal(mixture.block.results, freshResults(mixture.block)));
    }

    void singleLeavesOthers()
    {
        Mixture mixture;
        evaluate(mixture.block);
        const BodePlotCalculationResults before = mixture.block.results;
        mixture.change(1);
        single(mixture.block, 4);
        const BodePlotCalculationResults &after = mixture.block.results;
        for (std::size_t i = 0; i < before.items.size(); ++i)
            QCOMPARE(equal(after.items[i], before.items[i]), i != 4);
        QVERIFY(!equal(after.aggregated, before.aggregated));

        const BodePlotCalculationResults changed = after;
        single(mixture.block, 99);
        QVERIFY(equal(mixture.block.results, changed));
    }

    void otherBlocksAreEvaluatedInFull_data()
    {
        const auto row = rowsOf([](const Change &change) {
            Mixture mixture(2);
            evaluate(mixture.block);
            mixture.change(1);
            change(mixture);
            single(mixture.block, 0);
            QVERIFY(equal(mixture.block.results, freshResults(mixture.block)));
        });
        row("resolution", Change([](Mixture &m) { m.block.resolution = 1001; }));
        row("lowest", Change([](Mixture &m) { m.block.lowestFrequency = 10; }));
        row("highest", Change([](Mixture &m) { m.block.highestFrequency = 40000; }));
        row("sample rate", Change([](Mixture &m) { m.block.sampleRate = 96000; }));
        row("sample rate for the level alone", Change([](Mixture &m) {
                std::vector<double> level;
                m.block.sampleRate = 96000;
                FilterAlgorithm::calculateAggregatedLevel(m.block, level);
            }));
        row("one record more", Change([](Mixture &m) { m.block.items.push_back(&m.peak); }));
        row("one record less", Change([](Mixture &m) { m.block.items.pop_back(); }));
        row("never evaluated", Change([](Mixture &m) { m.block.results = {}; }));
    }
    void otherBlocksAreEvaluatedInFull() { checkRow(); }

    void copiesStandAlone()
    {
        Mixture mixture;
        evaluate(mixture.block);
        BodePlotCalculation copy = mixture.block;
        mixture.change(1);
        single(copy, 0);
        QVERIFY(equal(copy.results.items[4], mixture.block.results.items[4]));
        QVERIFY(!equal(copy.results.items[0], mixture.block.results.items[0]));

        BodePlotCalculation moved = std::move(copy);
        evaluate(moved);
        QVERIFY(equal(moved.results, freshResults(moved)));
        mixture.block.results = moved.results;
        single(mixture.block, 99);
        QVERIFY(equal(mixture.block.results, moved.results));
    }

    void sumOfCurves_data() { times(); }
    void sumOfCurves()
    {
        QFETCH(std::size_t, times);
        Mixture mixture(times);
        evaluate(mixture.block);
        const BodePlotCalculationResults &results = mixture.block.results;
        for (std::size_t i = 0; i < 1000; ++i) {
            double level = 0;
            double phase = 0;
            for (const FilterResponse &curve : results.items) {
                level += curve.magnitude[i];
                phase += curve.phase[i];
            }
            QCOMPARE(results.aggregated.magnitude[i], qBound(-240.0, level, 240.0));
            QVERIFY(std::abs(std::remainder(results.aggregated.phase[i] - phase, 360)) < 1e-9);
        }
    }

    void levelAlone()
    {
        Mixture mixture;
        std::vector<EqFilter> steep(7, eqBand(0, 30, -100, 0.5));
        std::vector<EqFilter> back(7, eqBand(0, 30, 100, 0.5));
        for (int i = 0; i < 7; ++i) {
            mixture.block.items.push_back(&steep[std::size_t(i)]);
            mixture.block.items.push_back(&back[std::size_t(i)]);
        }
        mixture.block.highestFrequency = 30000;
        std::vector<double> level;
        FilterAlgorithm::calculateAggregatedLevel(mixture.block, level);
        QVERIFY(mixture.block.results.items.empty());
        evaluate(mixture.block);
        const std::vector<double> &expected = mixture.block.results.aggregated.magnitude;
        QCOMPARE(level.size(), expected.size());
        for (std::size_t i = 0; i < level.size(); ++i)
            if (expected[i] > -200)
                QVERIFY2(std::abs(level[i] - expected[i]) < 1e-9, qPrintable(QString::number(i)));
    }

    void pointsDoNotDependOnTheResolution()
    {
        Mixture mixture;
        evaluate(mixture.block);
        const BodePlotCalculationResults all = mixture.block.results;
        for (bool last : {false, true}) {
            mixture.block.resolution = 1;
            mixture.block.lowestFrequency = last ? 20000 : 20;
            evaluate(mixture.block);
            for (std::size_t i = 0; i < all.items.size(); ++i) {
                const std::vector<double> &curve = all.items[i].magnitude;
                QCOMPARE(mixture.block.results.items[i].magnitude.front(), last ? curve.back() : curve.front());
            }
        }
    }

    void dragAllocatesNothing()
    {
        Mixture mixture;
        std::vector<double> level;
        evaluate(mixture.block);
        FilterAlgorithm::calculateAggregatedLevel(mixture.block, level);
        for (bool warm : {false, true}) {
            mixture.change(1);
            takeAllocationCount();
            for (unsigned i = 0; i < mixture.block.items.size(); ++i)
                single(mixture.block, i);
            FilterAlgorithm::calculateAggregatedLevel(mixture.block, level);
            if (warm)
                QCOMPARE(takeAllocationCount(), std::size_t(0));
        }
    }

private:
    static void times()
    {
        QTest::addColumn<std::size_t>("times");
        for (const std::size_t count : {1u, 5u})
            QTest::addRow("%zu", count) << count;
    }
};

template struct TestClass<tst_FilterResponseBlock>;
#include "tst_FilterResponseBlock.moc"
