#include "support/Numbers.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <tamblecommon-math/ScaleMappings.h>

#include <cmath>
#include <limits>

using namespace tamble::common;

namespace {

using Mapping = double (*)(double, double, double, double, double) noexcept;

void addColumns()
{
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("inMin");
    QTest::addColumn<double>("inMax");
    QTest::addColumn<double>("outMin");
    QTest::addColumn<double>("outMax");
    QTest::addColumn<double>("expected");
}

void compareMapping(Mapping mapping)
{
    QFETCH(double, x);
    QFETCH(double, inMin);
    QFETCH(double, inMax);
    QFETCH(double, outMin);
    QFETCH(double, outMax);
    QFETCH(double, expected);

    const double result = mapping(x, inMin, inMax, outMin, outMax);
    QVERIFY2(std::abs(result - expected) <= 1e-12 * std::max(1.0, std::abs(expected)),
             qPrintable(QString::number(result, 'g', 17)));
}

} // namespace

class tst_ScaleMappings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lin2lin_data()
    {
        addColumns();
        QTest::newRow("middle") << 5.0 << 0.0 << 10.0 << 100.0 << 200.0 << 150.0;
        QTest::newRow("output runs backwards") << 12.0 << -18.0 << 18.0 << 360.0 << 0.0 << 60.0;
        QTest::newRow("input runs backwards") << 2.0 << 8.0 << 0.0 << 0.0 << 4.0 << 3.0;
        QTest::newRow("outside is not clamped") << -5.0 << 0.0 << 10.0 << 0.0 << 1.0 << -0.5;
        QTest::newRow("empty input range") << 5.0 << 3.0 << 3.0 << 7.0 << 9.0 << 7.0;
        QTest::newRow("empty input range at its bound") << 3.0 << 3.0 << 3.0 << 7.0 << 9.0 << 7.0;
        QTest::newRow("NaN position") << notANumber << 0.0 << 10.0 << 7.0 << 9.0 << 7.0;
        QTest::newRow("infinite bound") << 5.0 << 0.0 << infinity << 7.0 << 9.0 << 7.0;
        QTest::newRow("NaN output bound") << 10.0 << 0.0 << 10.0 << 7.0 << notANumber << 7.0;
        QTest::newRow("overflow") << 1e300 << 0.0 << 1e-300 << 7.0 << 9.0 << 7.0;
    }

    void lin2lin() { compareMapping(tamble::common::lin2lin); }
    void log2lin_data()
    {
        addColumns();
        QTest::newRow("one of three decades") << 200.0 << 20.0 << 20000.0 << 0.0 << 300.0 << 100.0;
        QTest::newRow("geometric middle") << std::sqrt(20.0 * 20000.0) << 20.0 << 20000.0 << 0.0 << 1.0 << 0.5;
        QTest::newRow("input runs backwards") << 10.0 << 1000.0 << 1.0 << 0.0 << 3.0 << 2.0;
        QTest::newRow("outside is not clamped") << 2.0 << 20.0 << 200.0 << 0.0 << 10.0 << -10.0;
        QTest::newRow("position 0") << 0.0 << 20.0 << 20000.0 << 7.0 << 9.0 << 7.0;
        QTest::newRow("negative position") << -20.0 << 20.0 << 20000.0 << 7.0 << 9.0 << 7.0;
        QTest::newRow("lower bound 0") << 20.0 << 0.0 << 20000.0 << 7.0 << 9.0 << 7.0;
        QTest::newRow("negative bounds") << -20.0 << -200.0 << -2.0 << 7.0 << 9.0 << 7.0;
        QTest::newRow("empty input range") << 20.0 << 20.0 << 20.0 << 7.0 << 9.0 << 7.0;
        QTest::newRow("infinite position") << infinity << 20.0 << 20000.0 << 7.0 << 9.0 << 7.0;
    }

    void log2lin() { compareMapping(tamble::common::log2lin); }
    void lin2log_data()
    {
        addColumns();
        QTest::newRow("one of three decades") << 1.0 << 0.0 << 3.0 << 20.0 << 20000.0 << 200.0;
        QTest::newRow("output runs backwards") << 1.0 << 0.0 << 3.0 << 1000.0 << 1.0 << 100.0;
        QTest::newRow("outside is not clamped") << 2.0 << 0.0 << 1.0 << 20.0 << 200.0 << 2000.0;
        QTest::newRow("input may be negative") << -10.0 << -20.0 << 0.0 << 1.0 << 100.0 << 10.0;
        QTest::newRow("output bound 0") << 0.5 << 0.0 << 1.0 << 0.0 << 20.0 << 0.0;
        QTest::newRow("negative output bound") << 1.0 << 0.0 << 1.0 << 20.0 << -5.0 << 20.0;
        QTest::newRow("empty input range") << 1.0 << 1.0 << 1.0 << 20.0 << 200.0 << 20.0;
        QTest::newRow("NaN position") << notANumber << 0.0 << 1.0 << 20.0 << 200.0 << 20.0;
        QTest::newRow("overflow") << 1e6 << 0.0 << 1.0 << 20.0 << 200.0 << 20.0;
    }

    void lin2log() { compareMapping(tamble::common::lin2log); }
    void endsAreExact()
    {
        // A handle dragged to the end of its scale has to write the limit itself, not the double beside it.
        QCOMPARE(tamble::common::lin2lin(0.3, 0.1, 0.3, -0.7, 0.9), 0.9);
        QCOMPARE(tamble::common::log2lin(0.3, 0.1, 0.3, -0.7, 0.9), 0.9);
        QCOMPARE(tamble::common::lin2log(0.3, 0.1, 0.3, 20.1, 19999.9), 19999.9);
        QCOMPARE(tamble::common::lin2log(0.1, 0.1, 0.3, 20.1, 19999.9), 20.1);
    }

    void halvesStayExact()
    {
        // 7 / 10 * 45 falls below 31.5 when it is divided before it is multiplied.
        QVERIFY(tamble::common::lin2lin(7, 0, 10, 0, 45) == 31.5);
    }

    void orderOfMagnitude_data()
    {
        const Rows<double, double> row;
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

    void orderOfMagnitude()
    {
        const auto &[x, expected] = Rows<double, double>::current();
        QVERIFY(tamble::common::orderOfMagnitude(x) == expected);
    }
};

template struct TestClass<tst_ScaleMappings>;
#include "tst_ScaleMappings.moc"
