#include "response/ResponseKernels.h"
#include "response/TapGroups.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <cmath>
#include <memory>
#include <numbers>
#include <random>

using namespace tamble::common::response;

namespace {

// Runs a kernel on one value of each kind and gives the result for it.
struct OnePoint
{
    BlockResponse block{};
    double result[blockSize] = {};

    OnePoint(double numerator, double denominator, double re, double im)
    {
        std::fill(std::begin(block.numerator), std::end(block.numerator), numerator);
        std::fill(std::begin(block.denominator), std::end(block.denominator), denominator);
        std::fill(std::begin(block.re), std::end(block.re), re);
        std::fill(std::begin(block.im), std::end(block.im), im);
    }
};

} // namespace

// The loops over points, for every instruction set that this processor has.
class tst_ResponseKernels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void logarithmAndAngle()
    {
        std::mt19937_64 random(1);
        std::uniform_real_distribution<double> exponent(-11, 11);
        std::uniform_real_distribution<double> part(-1, 1);
        auto block = std::make_unique<BlockResponse>();
        double values[blockSize];
        for (int round = 0; round < 400; ++round) {
            for (std::size_t i = 0; i < blockSize; ++i) {
                const double scale = std::pow(10, 2 * exponent(random));
                const double ratio = round % 2 == 0 ? std::pow(10, exponent(random)) : 1 + 1e-3 * part(random);
                block->numerator[i] = scale * ratio;
                block->denominator[i] = scale;
                block->re[i] = scale * part(random);
                block->im[i] = scale * part(random);
            }
            for (const ResponseKernels *kernels : availableKernels()) {
                kernels->level(*block, values);
                for (std::size_t i = 0; i < blockSize; ++i) {
                    const long double ratio = static_cast<long double>(block->numerator[i]) / block->denominator[i];
                    QVERIFY2(std::abs(double(values[i] - 10 * std::log10(ratio))) < 1e-13, kernels->name);
                }
                kernels->phase(*block, values);
                for (std::size_t i = 0; i < blockSize; ++i) {
                    const long double angle = std::atan2(static_cast<long double>(block->im[i]), block->re[i]);
                    const long double degrees = angle * 180 / std::numbers::pi_v<long double>;
                    QVERIFY2(std::abs(double(values[i] - degrees)) < 1e-13, kernels->name);
                }
            }
        }
    }

    void exactValues_data()
    {
        // point: numerator, denominator, re, im
        const auto row = rowsOf([](const QList<double> &point, double level, double phase) {
            OnePoint values(point[0], point[1], point[2], point[3]);
            for (const ResponseKernels *kernels : availableKernels()) {
                kernels->level(values.block, values.result);
                QVERIFY2(values.result[0] == level && values.result[blockSize - 1] == level, kernels->name);
                kernels->phase(values.block, values.result);
                QVERIFY2(values.result[0] == phase && values.result[blockSize - 1] == phase, kernels->name);
            }
        });
        row("unity", {0.7, 0.7, 0.7, 0}, 0.0, 0.0);
        row("zero", {0, 0.7, 0, 0}, -240.0, 0.0);
        row("below the floor", {9e-25, 1, -1, 1}, -240.0, 0.0);
        row("above the ceiling", {1e30, 1, 0, 1}, 240.0, 90.0);
        row("straight down", {1, 1, 0, -5}, 0.0, -90.0);
        row("diagonal", {1, 1, -3, 3}, 0.0, 135.0);
        row("turned", {1, 1, -1, 0}, 0.0, 180.0);
        row("turned, from below", {1, 1, -1, -0.0}, 0.0, 180.0);
        row("turned, from far below", {1, 1, -1, -1e-30}, 0.0, 180.0);
    }
    void exactValues() { checkRow(); }

    void wrappedPhases_data()
    {
        const Rows<double, double> row;
        row("within", -179.5, -179.5);
        row("upper end", 180.0, 180.0);
        row("lower end", -180.0, 180.0);
        row("one turn", 190.0, -170.0);
        row("turns down", -900.0, 180.0);
        row("many turns", 36000.0 + 45, 45.0);
    }

    void wrappedPhases()
    {
        const auto &[sum, wrapped] = Rows<double, double>::current();
        for (const ResponseKernels *kernels : availableKernels()) {
            double values[blockSize];
            std::fill(std::begin(values), std::end(values), sum);
            kernels->wrapPhases(values);
            QVERIFY2(values[0] == wrapped, kernels->name);
            // Rounding next to an end does not leave the range.
            for (double turn : {-540.0, -180.0, 180.0, 540.0, 1260.0}) {
                for (double next : {std::nextafter(turn, 0), std::nextafter(turn, 2 * turn)}) {
                    std::fill(std::begin(values), std::end(values), next);
                    kernels->wrapPhases(values);
                    QVERIFY2(values[0] > -180 && values[0] <= 180, kernels->name);
                }
            }
        }
    }

    void tapsAreSummed()
    {
        // Two whole groups and a part of one.
        std::vector<double> taps(37);
        for (std::size_t m = 0; m < taps.size(); ++m)
            taps[m] = double((m * 7) % 11) - 5;
        std::vector<double> groups;
        groupTaps(taps, groups);

        std::vector<double> tables[4];
        for (auto &table : tables)
            table.resize(blockSize);
        for (std::size_t i = 0; i < blockSize; ++i) {
            const double w = std::numbers::pi * double(i) / double(blockSize - 1);
            tables[0][i] = std::cos(w / 2);
            tables[1][i] = std::sin(w / 2);
            tables[2][i] = std::cos(16 * w);
            tables[3][i] = std::sin(16 * w);
        }
        const BlockAngles angles{tables[0].data(), tables[1].data(), tables[2].data(), tables[3].data()};
        BlockResponse block;
        for (const ResponseKernels *kernels : availableKernels()) {
            kernels->taps(groups.data(), groups.size() / tapGroup, angles, block);
            for (std::size_t i = 0; i < blockSize; ++i) {
                const double w = std::numbers::pi * double(i) / double(blockSize - 1);
                double re = 0;
                double im = 0;
                for (std::size_t m = 0; m < taps.size(); ++m) {
                    re += taps[m] * std::cos(double(m) * w);
                    im -= taps[m] * std::sin(double(m) * w);
                }
                QVERIFY2(std::hypot(block.re[i] - re, block.im[i] - im) < 1e-11, kernels->name);
                QVERIFY2(std::abs(block.numerator[i] - re * re - im * im) < 1e-9, kernels->name);
            }
        }
    }
};

template struct TestClass<tst_ResponseKernels>;
#include "tst_ResponseKernels.moc"
