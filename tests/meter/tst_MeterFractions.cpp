#include "meter/MeterFractions.h"
#include "support/Numbers.h"
#include "support/TestProgram.h"

#include <QtCore/QObject>
#include <QtTest/QTest>

using namespace tamble::client;

class tst_MeterFractions : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void displayedLevel_data();
    void displayedLevel();
    void fractions_data();
    void fractions();
};

void tst_MeterFractions::displayedLevel_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("level");
    QTest::addColumn<double>("displayed");

    QTest::newRow("inside") << -80.0 << 6.0 << -20.0 << -20.0;
    QTest::newRow("below") << -80.0 << 6.0 << -100.0 << -80.0;
    QTest::newRow("above") << -80.0 << 6.0 << 20.0 << 6.0;
    QTest::newRow("NaN") << -80.0 << 6.0 << notANumber << -80.0;
    QTest::newRow("infinite") << -80.0 << 6.0 << infinity << 6.0;
    QTest::newRow("reversed range ends at its maximum") << 6.0 << -80.0 << -20.0 << -80.0;
}

void tst_MeterFractions::displayedLevel()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, level);
    QFETCH(double, displayed);
    QCOMPARE(tamble::client::displayedLevel({minimum, maximum, 0.0}, level), displayed);
}

void tst_MeterFractions::fractions_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("split");
    QTest::addColumn<double>("level");
    QTest::addColumn<double>("zone");
    QTest::addColumn<double>("bar");
    QTest::addColumn<double>("upper");
    QTest::addColumn<double>("lower");

    QTest::newRow("level under the zone") << -80.0 << 20.0 << 0.0 << 5.0 << 10.0 << 0.85 << 0.25 << -0.125;
    QTest::newRow("level over the zone") << -80.0 << 20.0 << 0.0 << 15.0 << 10.0 << 0.9 << 0.5 << -0.1875;
    QTest::newRow("level under the split point") << -80.0 << 20.0 << 0.0 << -20.0 << -40.0 << 0.4 << -2.0 << 0.25;
    QTest::newRow("level at the minimum lights the lower section only")
        << -80.0 << 20.0 << 0.0 << -80.0 << -80.0 << 0.0 << 0.0 << 1.0;
    QTest::newRow("level under the minimum") << -80.0 << 20.0 << 0.0 << -81.0 << -40.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("zone under the minimum") << -80.0 << 20.0 << 0.0 << -20.0 << -90.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("level and zone over the maximum") << -80.0 << 20.0 << 0.0 << 30.0 << 40.0 << 1.0 << 1.0 << -0.5;
    QTest::newRow("empty range") << 0.0 << 0.0 << 0.0 << 5.0 << 5.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("split at the maximum") << -80.0 << 20.0 << 20.0 << -30.0 << -30.0 << 0.5 << 0.0 << 0.5;
    QTest::newRow("split at the minimum") << -80.0 << 20.0 << -80.0 << -30.0 << -30.0 << 0.5 << 0.5 << 0.0;
    QTest::newRow("NaN level") << -80.0 << 20.0 << 0.0 << notANumber << 10.0 << 0.0 << 0.0 << 0.0;
    QTest::newRow("NaN minimum") << notANumber << 20.0 << 0.0 << 5.0 << 10.0 << 0.0 << 0.25 << 0.0;
    QTest::newRow("infinite maximum") << -80.0 << infinity << 0.0 << 5.0 << 10.0 << 0.0 << 0.0 << -0.125;
    QTest::newRow("infinite minimum") << -infinity << 20.0 << 0.0 << 5.0 << 10.0 << 0.0 << 0.25 << 0.0;
}

void tst_MeterFractions::fractions()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, split);
    QFETCH(double, level);
    QFETCH(double, zone);
    const MeterRange range{minimum, maximum, split};
    QTEST(barFraction(range, level, zone), "bar");
    QTEST(upperFraction(range, level, zone), "upper");
    QTEST(lowerFraction(range, level, zone), "lower");
}

template struct TestClass<tst_MeterFractions>;
#include "tst_MeterFractions.moc"
