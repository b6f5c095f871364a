#include "fader/FaderDrag.h"
#include "fader/FaderTravel.h"
#include "fader/TransferTable.h"
#include "support/Numbers.h"
#include "support/TestProgram.h"

#include <QtCore/QObject>
#include <QtTest/QTest>

#include <cmath>

using namespace tamble::client;

namespace {

bool isNear(double actual, double expected, double tolerance)
{
    return std::abs(actual - expected) <= tolerance;
}

} // namespace

class tst_FaderLaws : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tables_data();
    void tables();
    void tableMaps_data();
    void tableMaps();
    void travel_data();
    void travel();
    void everyPlaceComesBack_data();
    void everyPlaceComesBack();
    void rounding_data();
    void rounding();
    void steps();
    void detents_data();
    void detents();
    void drag();
};

void tst_FaderLaws::tables_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<int>("points");
    QTest::addColumn<double>("first");

    QTest::newRow("-80 to 10") << -80.0 << 10.0 << 9 << -80.0;
    QTest::newRow("-81 to 10 has the table of -80") << -81.0 << 10.0 << 9 << -80.0;
    QTest::newRow("-80 to 42") << -80.0 << 42.0 << 10 << -80.0;
    QTest::newRow("-81 to 42 has none") << -81.0 << 42.0 << 2 << -81.0;
    QTest::newRow("nearly -80") << -80.001 << 10.0 << 2 << -80.001;
}

void tst_FaderLaws::tables()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(int, points);
    QFETCH(double, first);
    const std::vector<TransferPoint> table = transferTable(minimum, maximum);
    QCOMPARE(int(table.size()), points);
    QCOMPARE(table.front().level, first);
    QCOMPARE(table.front().position, 0.0);
    QCOMPARE(table.back().level, maximum);
    QCOMPARE(table.back().position, 1.0);
}

void tst_FaderLaws::tableMaps_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("level");
    QTest::addColumn<double>("position");

    QTest::newRow("point") << -80.0 << 10.0 << -5.0 << 0.625;
    QTest::newRow("between points") << -80.0 << 10.0 << -25.0 << 0.225;
    QTest::newRow("lowest segment") << -80.0 << 10.0 << -65.0 << 0.025;
    QTest::newRow("top") << -80.0 << 10.0 << 10.0 << 1.0;
    QTest::newRow("between points to 42") << -80.0 << 42.0 << 36.0 << 0.925;
    QTest::newRow("linear without a table") << -60.0 << 0.0 << -15.0 << 0.75;
}

void tst_FaderLaws::tableMaps()
{
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, level);
    QFETCH(double, position);
    QVERIFY(isNear(positionByTable(level, minimum, maximum), position, 1e-12));
    QVERIFY(isNear(levelByTable(position, minimum, maximum), level, 1e-9));
    QCOMPARE(positionByTable(minimum - 1, minimum, maximum), 0.0);
    QCOMPARE(positionByTable(maximum + 1, minimum, maximum), 1.0);
    QCOMPARE(levelByTable(-0.1, minimum, maximum), minimum);
    QCOMPARE(levelByTable(1.1, minimum, maximum), maximum);
}

void tst_FaderLaws::travel_data()
{
    QTest::addColumn<FaderLaw>("law");
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<double>("level");
    QTest::addColumn<double>("position");

    QTest::newRow("linear") << FaderLaw::Linear << -80.0 << 10.0 << -35.0 << 0.5;
    QTest::newRow("exponential at -40") << FaderLaw::Exponential << -80.0 << 10.0 << -40.0 << 0.117;
    QTest::newRow("exponential at -20") << FaderLaw::Exponential << -80.0 << 10.0 << -20.0 << 0.292;
    QTest::newRow("exponential at 0") << FaderLaw::Exponential << -80.0 << 10.0 << 0.0 << 0.669;
    QTest::newRow("table") << FaderLaw::Table << -80.0 << 10.0 << 0.0 << 0.75;
    QTest::newRow("table under its own first point") << FaderLaw::Table << -81.0 << 10.0 << -80.5 << 0.0;
    QTest::newRow("over the range") << FaderLaw::Linear << -80.0 << 10.0 << 25.0 << 1.0;
    QTest::newRow("infinite") << FaderLaw::Linear << -80.0 << 10.0 << infinity << 1.0;
    QTest::newRow("not a number") << FaderLaw::Exponential << -80.0 << 10.0 << notANumber << 0.0;
    QTest::newRow("reversed") << FaderLaw::Linear << 10.0 << -80.0 << -57.5 << 0.75;
    QTest::newRow("reversed exponential") << FaderLaw::Exponential << 10.0 << -80.0 << 0.0 << 1.0 - 0.669;
    QTest::newRow("a reversed table is linear") << FaderLaw::Table << 10.0 << -80.0 << -57.5 << 0.75;
    QTest::newRow("overflowing exponential is linear") << FaderLaw::Exponential << 0.0 << 40000.0 << 10000.0 << 0.25;
    QTest::newRow("empty range") << FaderLaw::Table << 5.0 << 5.0 << 5.0 << 0.0;
    QTest::newRow("range without an end") << FaderLaw::Linear << -80.0 << notANumber << 0.0 << 0.0;
}

void tst_FaderLaws::travel()
{
    QFETCH(FaderLaw, law);
    QFETCH(double, from);
    QFETCH(double, to);
    QFETCH(double, level);
    QFETCH(double, position);
    QVERIFY(isNear(FaderTravel({from, to, law}).position(level), position, 5e-4));
}

void tst_FaderLaws::everyPlaceComesBack_data()
{
    QTest::addColumn<FaderLaw>("law");
    QTest::addColumn<double>("to");
    QTest::newRow("linear") << FaderLaw::Linear << 10.0;
    QTest::newRow("exponential") << FaderLaw::Exponential << 10.0;
    QTest::newRow("table to 10") << FaderLaw::Table << 10.0;
    QTest::newRow("table to 42") << FaderLaw::Table << 42.0;
}

// Properties of any law: the way back leads to the same place, upwards is louder, and the ends are exact.
void tst_FaderLaws::everyPlaceComesBack()
{
    QFETCH(FaderLaw, law);
    QFETCH(double, to);
    const FaderTravel travel{-80.0, to, law};
    double previous = -infinity;
    for (int i = 0; i <= 1000; ++i) {
        const double level = travel.level(i / 1000.0);
        QVERIFY(level > previous);
        QVERIFY(isNear(travel.position(level), i / 1000.0, 1e-9));
        previous = level;
    }
    QCOMPARE(travel.level(0.0), -80.0);
    QCOMPARE(travel.level(1.0), to);
    QCOMPARE(travel.level(-3.0), -80.0);
    QCOMPARE(travel.level(7.0), to);
    QCOMPARE(travel.level(notANumber), -80.0);
}

void tst_FaderLaws::rounding_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<double>("step");
    QTest::addColumn<double>("level");
    QTest::addColumn<double>("rounded");

    QTest::newRow("to the nearest") << -80.0 << 10.0 << 0.5 << -12.2 << -12.0;
    QTest::newRow("from counts, not 0") << -80.3 << 10.0 << 0.5 << -12.2 << -12.3;
    QTest::newRow("without noise") << -80.0 << 10.0 << 0.1 << -9.68 << -9.7;
    QTest::newRow("continuous") << -80.0 << 10.0 << 0.0 << -12.2 << -12.2;
    QTest::newRow("negative step") << -80.0 << 10.0 << -0.5 << -12.2 << -12.0;
    QTest::newRow("step that is not a number") << -80.0 << 10.0 << notANumber << -12.2 << -12.2;
    QTest::newRow("upper end off the grid") << -80.0 << 10.0 << 40.0 << 9.0 << 10.0;
    QTest::newRow("under the upper end") << -80.0 << 10.0 << 40.0 << 3.0 << 0.0;
    QTest::newRow("reversed") << 10.0 << -80.0 << 0.5 << -12.2 << -12.0;
    QTest::newRow("outside") << -80.0 << 10.0 << 0.5 << 25.0 << 10.0;
}

void tst_FaderLaws::rounding()
{
    QFETCH(double, from);
    QFETCH(double, to);
    QFETCH(double, step);
    QFETCH(double, level);
    QFETCH(double, rounded);
    QCOMPARE(FaderTravel({from, to, FaderLaw::Linear}).rounded(level, step), rounded);
}

void tst_FaderLaws::steps()
{
    const FaderTravel travel;
    double level = -10.0;
    for (int i = 0; i < 3; ++i)
        level = travel.stepped(level, 0.1);
    QVERIFY2(level == -9.7, "three steps of 0.1 without the noise of binary fractions");
    QCOMPARE(travel.stepped(9.9, 3.0), 10.0);
    QCOMPARE(travel.stepped(-80.0, -3.0), -80.0);
}

void tst_FaderLaws::detents_data()
{
    QTest::addColumn<double>("level");
    QTest::addColumn<double>("held");
    QTest::newRow("at the detent") << 0.0 << 0.0;
    QTest::newRow("within reach") << -0.8 << 0.0;
    QTest::newRow("out of reach") << -1.2 << -1.2;
    QTest::newRow("the nearer of two") << 0.6 << 1.0;
    QTest::newRow("one outside of the range") << 9.5 << 9.5;
}

// 100 pixels of travel over 100 dB, reach 1 pixel: detents hold within 1 dB.
void tst_FaderLaws::detents()
{
    QFETCH(double, level);
    QFETCH(double, held);
    const FaderTravel travel{-90.0, 10.0, FaderLaw::Linear};
    QCOMPARE(travel.held(level, travel.position(level), {0.0, 1.0, 10.2}, 0.01), held);
}

void tst_FaderLaws::drag()
{
    FaderDrag drag;
    drag.begin(0.5, 30.0);
    QCOMPARE(drag.moved(40.0, 100.0, 1.0, 0.5), 0.6);
    QCOMPARE(drag.moved(90.0, 100.0, 1.0, 0.6), 1.1);
    QCOMPARE(drag.moved(85.0, 100.0, 1.0, 1.0), 1.05); // still beyond: it has to come back as far as it went over
    QCOMPARE(drag.moved(85.0, 100.0, 0.1, 1.0), 1.0);  // slower: goes on from where the handle is
    QCOMPARE(drag.moved(75.0, 100.0, 0.1, 1.0), 0.99);
    QCOMPARE(drag.moved(65.0, 100.0, 1.0, 0.99), 0.89);
    QCOMPARE(drag.moved(55.0, 0.0, 1.0, 0.89), 0.99); // without a travel nothing moves from the last anchor
}

template struct TestClass<tst_FaderLaws>;
#include "tst_FaderLaws.moc"
