#include "support/Numbers.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <tamblecommon-math/ScaleMappings.h>

#include <cmath>
#include <limits>

using namespace tamble::common;

namespace {

using Mapping = double (*)(double, double, double, double, double) noexcept;
using Range = std::pair<double, double>;

} // namespace

class tst_ScaleMappings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mapping_data()
    {
        // from, to: the ends of the two ranges
        const auto row =
            rowsOf([](const Mapping &mapping, double x, const Range &from, const Range &to, double expected) {
                const double result = mapping(x, from.first, from.second, to.first, to.second);
                QVERIFY2(std::abs(result - expected) <= 1e-12 * std::max(1.0, std::abs(expected)),
                         qPrintable(QString::number(result, 'g', 17)));
            });
        row("lin2lin: middle", lin2lin, 5.0, {0.0, 10.0}, {100.0, 200.0}, 150.0);
        row("lin2lin: output runs backwards", lin2lin, 12.0, {-18.0, 18.0}, {360.0, 0.0}, 60.0);
        row("lin2lin: input runs backwards", lin2lin, 2.0, {8.0, 0.0}, {0.0, 4.0}, 3.0);
        row("lin2lin: outside is not clamped", lin2lin, -5.0, {0.0, 10.0}, {0.0, 1.0}, -0.5);
        row("lin2lin: empty input range", lin2lin, 5.0, {3.0, 3.0}, {7.0, 9.0}, 7.0);
        row("lin2lin: empty input range at its bound", lin2lin, 3.0, {3.0, 3.0}, {7.0, 9.0}, 7.0);
        row("lin2lin: NaN position", lin2lin, notANumber, {0.0, 10.0}, {7.0, 9.0}, 7.0);
        row("lin2lin: infinite bound", lin2lin, 5.0, {0.0, infinity}, {7.0, 9.0}, 7.0);
        row("lin2lin: NaN output bound", lin2lin, 10.0, {0.0, 10.0}, {7.0, notANumber}, 7.0);
        row("lin2lin: overflow", lin2lin, 1e300, {0.0, 1e-300}, {7.0, 9.0}, 7.0);
        row("log2lin: one of three decades", log2lin, 200.0, {20.0, 20000.0}, {0.0, 300.0}, 100.0);
        row("log2lin: geometric middle", log2lin, std::sqrt(20.0 * 20000.0), {20.0, 20000.0}, {0.0, 1.0}, 0.5);
        row("log2lin: input runs backwards", log2lin, 10.0, {1000.0, 1.0}, {0.0, 3.0}, 2.0);
        row("log2lin: outside is not clamped", log2lin, 2.0, {20.0, 200.0}, {0.0, 10.0}, -10.0);
        row("log2lin: position 0", log2lin, 0.0, {20.0, 20000.0}, {7.0, 9.0}, 7.0);
        row("log2lin: negative position", log2lin, -20.0, {20.0, 20000.0}, {7.0, 9.0}, 7.0);
        row("log2lin: lower bound 0", log2lin, 20.0, {0.0, 20000.0}, {7.0, 9.0}, 7.0);
        row("log2lin: negative bounds", log2lin, -20.0, {-200.0, -2.0}, {7.0, 9.0}, 7.0);
        row("log2lin: empty input range", log2lin, 20.0, {20.0, 20.0}, {7.0, 9.0}, 7.0);
        row("log2lin: infinite position", log2lin, infinity, {20.0, 20000.0}, {7.0, 9.0}, 7.0);
        row("lin2log: one of three decades", lin2log, 1.0, {0.0, 3.0}, {20.0, 20000.0}, 200.0);
        row("lin2log: output runs backwards", lin2log, 1.0, {0.0, 3.0}, {1000.0, 1.0}, 100.0);
        row("lin2log: outside is not clamped", lin2log, 2.0, {0.0, 1.0}, {20.0, 200.0}, 2000.0);
        row("lin2log: input may be negative", lin2log, -10.0, {-20.0, 0.0}, {1.0, 100.0}, 10.0);
        row("lin2log: output bound 0", lin2log, 0.5, {0.0, 1.0}, {0.0, 20.0}, 0.0);
        row("lin2log: negative output bound", lin2log, 1.0, {0.0, 1.0}, {20.0, -5.0}, 20.0);
        row("lin2log: empty input range", lin2log, 1.0, {1.0, 1.0}, {20.0, 200.0}, 20.0);
        row("lin2log: NaN position", lin2log, notANumber, {0.0, 1.0}, {20.0, 200.0}, 20.0);
        row("lin2log: overflow", lin2log, 1e6, {0.0, 1.0}, {20.0, 200.0}, 20.0);
    }
    void mapping() { checkRow(); }

    void endsAreExact()
    {
        // A handle dragged to the end of its scale has to write the limit itself, not the double beside it.
        QCOMPARE(lin2lin(0.3, 0.1, 0.3, -0.7, 0.9), 0.9);
        QCOMPARE(log2lin(0.3, 0.1, 0.3, -0.7, 0.9), 0.9);
        QCOMPARE(lin2log(0.3, 0.1, 0.3, 20.1, 19999.9), 19999.9);
        QCOMPARE(lin2log(0.1, 0.1, 0.3, 20.1, 19999.9), 20.1);
    }

    void halvesStayExact()
    {
        // 7 / 10 * 45 falls below 31.5 when it is divided before it is multiplied.
        QVERIFY(lin2lin(7, 0, 10, 0, 45) == 31.5);
    }

    void orderOfMagnitude_data()
    {
        const auto row =
            rowsOf([](double x, double expected) { QVERIFY(tamble::common::orderOfMagnitude(x) == expected); });
        row("within a decade", 20.0, 10.0);
        row("power of ten", 1000.0, 1000.0);
        row("just below a power of ten", std::nextafter(1000.0, 0.0), 100.0);
        row("literal below one", 0.001, 0.001);
        row("just below a literal below one", std::nextafter(0.001, 0.0), 0.0001);
        row("negative", -450.0, 100.0);
        row("zero", 0.0, 1.0);
        row("NaN", notANumber, 1.0);
        row("negative infinity", -infinity, 1.0);
        row("largest", std::numeric_limits<double>::max(), 1e308);
        row("denormal", std::numeric_limits<double>::denorm_min(), 1e-307);
    }
    void orderOfMagnitude() { checkRow(); }
};

template struct TestClass<tst_ScaleMappings>;
#include "tst_ScaleMappings.moc"
