#include "plot/AxisTicks.h"
#include "support/TestProgram.h"

#include <QtCore/QObject>
#include <QtTest/QTest>

#include <limits>

using namespace tamble::client;
using namespace Qt::StringLiterals;

class tst_AxisTicks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void step_data();
    void step();
    void ticks_data();
    void ticks();
    void tickPlaces();
    void hugeCountEnds();
};

void tst_AxisTicks::step_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("count");
    QTest::addColumn<double>("expected");
    QTest::newRow("relative 0.5") << 0.0 << 100.0 << 5.0 << 50.0;
    QTest::newRow("relative 0.116") << -80.0 << 6.0 << 10.0 << 10.0;
    QTest::newRow("relative 0.28") << 0.0 << 1.0 << 28.0 << 0.1;
    QTest::newRow("relative 0.4") << 0.0 << 100.0 << 4.0 << 50.0;
    QTest::newRow("relative 0.8") << 0.0 << 100.0 << 8.0 << 20.0;
    QTest::newRow("relative 1") << 0.0 << 100.0 << 10.0 << 20.0;
}

void tst_AxisTicks::step()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, count);
    QFETCH(double, expected);
    QCOMPARE(axisStep(minimum, maximum, count), expected);
}

void tst_AxisTicks::ticks_data()
{
    using Limits = std::numeric_limits<double>;
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("count");
    QTest::addColumn<QString>("labels");

    QTest::newRow("tenths") << 0.0 << 1.0 << 28.0 << u"0 0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.9 1"_s;
    QTest::newRow("bounds between ticks") << -86.0 << 6.0 << 10.0 << u"-80 -70 -60 -50 -40 -30 -20 -10 0"_s;
    QTest::newRow("few ticks") << 0.0 << 100.0 << 2.5 << u"0 100"_s;
    QTest::newRow("zero has no sign") << -0.5 << 10.0 << 2.0 << u"0 10"_s;
    QTest::newRow("small values") << 0.0 << 2e-7 << 4.0 << u"0 1e-07 2e-07"_s;
    QTest::newRow("count 0") << 0.0 << 1.0 << 0.0 << QString();
    QTest::newRow("negative count") << 0.0 << 1.0 << -3.0 << QString();
    QTest::newRow("empty range") << 5.0 << 5.0 << 10.0 << QString();
    QTest::newRow("reversed range") << 6.0 << -80.0 << 10.0 << QString();
    QTest::newRow("NaN bound") << 0.0 << Limits::quiet_NaN() << 10.0 << QString();
    QTest::newRow("infinite bound") << 0.0 << Limits::infinity() << 10.0 << QString();
    QTest::newRow("range wider than the numbers") << -Limits::max() << Limits::max() << 10.0 << QString();
    QTest::newRow("NaN count") << 0.0 << 1.0 << Limits::quiet_NaN() << QString();
}

void tst_AxisTicks::ticks()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, count);
    QStringList labels;
    for (const AxisTick &tick : axisTicks(minimum, maximum, count, 280.0))
        labels << tick.label;
    QTEST(labels.join(u' '), "labels");
}

void tst_AxisTicks::tickPlaces()
{
    const QList<AxisTick> ticks = axisTicks(-10, 40, 5, 100);
    QCOMPARE(ticks, QList<AxisTick>({{80, u"0"_s}, {40, u"20"_s}, {0, u"40"_s}}));
}

void tst_AxisTicks::hugeCountEnds()
{
    // The step stays that of the count, so the ticks end before the range does.
    const QList<AxisTick> ticks = axisTicks(0, 5000, 50000, 280);
    QCOMPARE(ticks.size(), 2000);
    QCOMPARE(ticks.last().label, u"399.8"_s);
}

template struct TestClass<tst_AxisTicks>;
#include "tst_AxisTicks.moc"
