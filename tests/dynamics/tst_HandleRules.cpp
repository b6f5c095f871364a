#include "dynamics/HandleRules.h"
#include "dynamics/NumberPlaces.h"
#include "support/Numbers.h"
#include "support/TestProgram.h"

#include <QtCore/QObject>
#include <QtTest/QtTest>

#include <cmath>

using namespace tamble::client;

namespace {

/// Equal to the last digit: what a handle sends stands in texts and files. NaN equals NaN.
bool isSame(double a, double b)
{
    return std::isnan(a) ? std::isnan(b) : a == b && std::signbit(a) == std::signbit(b);
}

} // namespace

class tst_HandleRules : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void placeOnAxis_data();
    void placeOnAxis();
    void limitedValue_data();
    void limitedValue();
    void steppedValue_data();
    void steppedValue();
    void ratioOfLine_data();
    void ratioOfLine();
    void heightOfCurve_data();
    void heightOfCurve();
    void numberStarts_data();
    void numberStarts();
};

void tst_HandleRules::placeOnAxis_data()
{
    QTest::addColumn<double>("level");
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<double>("expected");

    QTest::newRow("inside") << -10.0 << -40.0 << 0.0 << 0.75;
    QTest::newRow("below") << -41.0 << -40.0 << 0.0 << 0.0;
    QTest::newRow("above") << infinity << -40.0 << 0.0 << 1.0;
    QTest::newRow("backwards") << -10.0 << 0.0 << -40.0 << 0.25;
    QTest::newRow("backwards, above") << 1.0 << 0.0 << -40.0 << 0.0;
    QTest::newRow("no number") << notANumber << -40.0 << 0.0 << 0.0;
    QTest::newRow("axis without length") << 7.0 << 5.0 << 5.0 << 0.0;
    QTest::newRow("endless axis") << 7.0 << -infinity << 5.0 << 0.0;
}

void tst_HandleRules::placeOnAxis()
{
    QFETCH(double, level);
    QFETCH(double, from);
    QFETCH(double, to);
    QFETCH(double, expected);
    QCOMPARE(tamble::client::placeOnAxis(level, from, to), expected);
    if (expected > 0.0 && expected < 1.0)
        QCOMPARE(levelAtPlace(expected, from, to), level);
}

void tst_HandleRules::limitedValue_data()
{
    QTest::addColumn<double>("wanted");
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("maximum");
    QTest::addColumn<double>("step");
    QTest::addColumn<double>("expected");

    QTest::newRow("rounded") << -12.3 << -60.0 << 20.0 << 0.5 << -12.5;
    QTest::newRow("the tenth itself, not three times it") << 0.32 << 0.1 << 10.0 << 0.1 << 0.3;
    QTest::newRow("a step that divides nothing") << 7.0 << -60.0 << 20.0 << 0.3 << 23 * 0.3;
    QTest::newRow("negative step") << 3.3 << -60.0 << 20.0 << -0.5 << 3.5;
    QTest::newRow("no step") << 3.33 << -60.0 << 20.0 << 0.0 << 3.33;
    QTest::newRow("NaN step") << 3.33 << -60.0 << 20.0 << notANumber << 3.33;
    QTest::newRow("0 has no sign") << -0.2 << -60.0 << 20.0 << 0.5 << 0.0;
    QTest::newRow("above") << 31.0 << -60.0 << 20.0 << 0.5 << 20.0;
    QTest::newRow("below") << -infinity << -60.0 << 20.0 << 0.5 << -60.0;
    QTest::newRow("a bound between two steps") << 19.9 << -60.0 << 19.8 << 0.5 << 19.8;
    QTest::newRow("swapped bounds") << -70.0 << 20.0 << -60.0 << 0.5 << -60.0;
    QTest::newRow("equal bounds") << 3.0 << 5.0 << 5.0 << 0.5 << 5.0;
    QTest::newRow("nothing wanted") << notANumber << -60.0 << 20.0 << 0.5 << notANumber;
    QTest::newRow("no bounds") << 3.0 << -60.0 << notANumber << 0.5 << notANumber;
}

void tst_HandleRules::limitedValue()
{
    QFETCH(double, wanted);
    QFETCH(double, minimum);
    QFETCH(double, maximum);
    QFETCH(double, step);
    QFETCH(double, expected);
    QVERIFY(isSame(tamble::client::limitedValue(wanted, minimum, maximum, step), expected));
}

void tst_HandleRules::steppedValue_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("change");
    QTest::addColumn<double>("step");
    QTest::addColumn<double>("expected");

    QTest::newRow("up") << -20.0 << 0.5 << 0.5 << -19.5;
    QTest::newRow("onto the grid") << -20.2 << 0.5 << 0.5 << -19.5;
    QTest::newRow("ten steps down, to the bound") << -57.0 << -5.0 << 0.5 << -60.0;
    QTest::newRow("at the bound") << 20.0 << 0.5 << 0.5 << 20.0;
    QTest::newRow("continuous") << 3.3 << 0.8 << 0.0 << 4.1;
    QTest::newRow("beyond the bound, outwards") << 25.0 << 0.5 << 0.5 << 25.0;
    QTest::newRow("beyond the bound, inwards") << 25.0 << -0.5 << 0.5 << 20.0;
    QTest::newRow("no number") << notANumber << 0.5 << 0.5 << -60.0;
    QTest::newRow("endless") << infinity << 0.5 << 0.5 << infinity;
}

void tst_HandleRules::steppedValue()
{
    QFETCH(double, value);
    QFETCH(double, change);
    QFETCH(double, step);
    QFETCH(double, expected);
    QVERIFY(isSame(tamble::client::steppedValue(value, change, -60.0, 20.0, step), expected));
    QVERIFY(isSame(tamble::client::steppedValue(value, change, 20.0, -60.0, step), expected));
}

void tst_HandleRules::ratioOfLine_data()
{
    QTest::addColumn<double>("run");
    QTest::addColumn<double>("rise");
    QTest::addColumn<double>("expected");

    QTest::newRow("4 : 1") << 20.0 << 5.0 << 4.0;
    QTest::newRow("expansion") << 20.0 << 40.0 << 0.5;
    QTest::newRow("flat") << 20.0 << 0.0 << 12.0;
    QTest::newRow("falling") << 20.0 << -1.0 << 12.0;
    QTest::newRow("no run") << 0.0 << 5.0 << notANumber;
    QTest::newRow("run backwards") << -3.0 << 5.0 << notANumber;
    QTest::newRow("no number") << 20.0 << notANumber << notANumber;
}

void tst_HandleRules::ratioOfLine()
{
    QFETCH(double, run);
    QFETCH(double, rise);
    QFETCH(double, expected);
    QVERIFY(isSame(tamble::client::ratioOfLine(run, rise, 12.0), expected));
}

void tst_HandleRules::heightOfCurve_data()
{
    QTest::addColumn<CurvePoints>("points");
    QTest::addColumn<double>("x");
    QTest::addColumn<double>("expected");
    const CurvePoints drop{{0, 1}, {0.5, 0.5}, {0.5, 0.75}, {1, 0.25}};

    QTest::newRow("first point") << drop << 0.0 << 1.0;
    QTest::newRow("on a slope") << drop << 0.25 << 0.75;
    QTest::newRow("behind the jump") << drop << 0.5 << 0.75;
    QTest::newRow("on the second slope") << drop << 0.75 << 0.5;
    QTest::newRow("last point") << drop << 1.0 << 0.25;
    QTest::newRow("on the floor before the curve") << CurvePoints{{0.25, 1}, {0.5, 0.75}, {0.5, 0.5}} << 0.125 << 1.0;
    QTest::newRow("no curve") << CurvePoints() << 0.5 << notANumber;
    QTest::newRow("no place") << drop << notANumber << notANumber;
}

void tst_HandleRules::heightOfCurve()
{
    QFETCH(CurvePoints, points);
    QFETCH(double, x);
    QFETCH(double, expected);
    QVERIFY(isSame(tamble::client::heightOfCurve(points, x), expected));
}

void tst_HandleRules::numberStarts_data()
{
    using Starts = QList<std::optional<double>>;
    QTest::addColumn<QList<double>>("centres");
    QTest::addColumn<double>("axisLength");
    QTest::addColumn<Starts>("expected");
    const std::optional<double> none;

    // Every number is 20 long, the gap is 4.
    QTest::newRow("all fit, the ends inside") << QList<double>{0, 50, 100} << 100.0 << Starts{0.0, 40.0, 80.0};
    QTest::newRow("touching the one before, and the last")
        << QList<double>{0, 25, 50, 75, 100} << 100.0 << Starts{0.0, none, 40.0, none, 80.0};
    QTest::newRow("backwards") << QList<double>{100, 75, 50, 25, 0} << 100.0 << Starts{80.0, none, 40.0, none, 0.0};
    QTest::newRow("the gap itself is kept") << QList<double>{10, 34, 70} << 80.0 << Starts{0.0, 24.0, 60.0};
    QTest::newRow("room for one") << QList<double>{0, 30} << 30.0 << Starts{none, 10.0};
    QTest::newRow("axis shorter than a number") << QList<double>{5} << 10.0 << Starts{0.0};
    QTest::newRow("none") << QList<double>() << 100.0 << Starts();
}

void tst_HandleRules::numberStarts()
{
    QFETCH(QList<double>, centres);
    QFETCH(double, axisLength);
    QFETCH(QList<std::optional<double>>, expected);
    QList<NumberSpan> spans;
    for (const double centre : centres)
        spans.append({.centre = centre, .length = 20.0});
    QVERIFY(tamble::client::numberStarts(spans, axisLength, 4.0) == expected);
}

template struct TestClass<tst_HandleRules>;
#include "tst_HandleRules.moc"
