#include "dynamics/HandleValues.h"
#include "support/Numbers.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <cmath>

using namespace tamble::client;

namespace {

/// Equal to the last digit: what a handle sends stands in texts and files. NaN equals NaN.
bool isSame(double a, double b)
{
    return std::isnan(a) ? std::isnan(b) : a == b && std::signbit(a) == std::signbit(b);
}

} // namespace

class tst_HandleValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void limitedValue_data()
    {
        const auto row = rowsOf([](double wanted, double minimum, double maximum, double step, double expected) {
            QVERIFY(isSame(tamble::client::limitedValue(wanted, minimum, maximum, step), expected));
        });
        row("rounded", -12.3, -60.0, 20.0, 0.5, -12.5);
        row("the tenth itself, not three times it", 0.32, 0.1, 10.0, 0.1, 0.3);
        row("a step that divides nothing", 7.0, -60.0, 20.0, 0.3, 23 * 0.3);
        row("negative step", 3.3, -60.0, 20.0, -0.5, 3.5);
        row("NaN step", 3.33, -60.0, 20.0, notANumber, 3.33);
        row("0 has no sign", -0.2, -60.0, 20.0, 0.5, 0.0);
        row("below", -infinity, -60.0, 20.0, 0.5, -60.0);
        row("a bound between two steps", 19.9, -60.0, 19.8, 0.5, 19.8);
        row("swapped bounds", -70.0, 20.0, -60.0, 0.5, -60.0);
        row("equal bounds", 3.0, 5.0, 5.0, 0.5, 5.0);
        row("nothing wanted", notANumber, -60.0, 20.0, 0.5, notANumber);
        row("no bounds", 3.0, -60.0, notANumber, 0.5, notANumber);
    }
    void limitedValue() { checkRow(); }

    void steppedValue_data()
    {
        const auto row = rowsOf([](double value, double change, double step, double expected) {
            QVERIFY(isSame(tamble::client::steppedValue(value, change, -60.0, 20.0, step), expected));
            QVERIFY(isSame(tamble::client::steppedValue(value, change, 20.0, -60.0, step), expected));
        });
        row("up", -20.0, 0.5, 0.5, -19.5);
        row("onto the grid", -20.2, 0.5, 0.5, -19.5);
        row("ten steps down, to the bound", -57.0, -5.0, 0.5, -60.0);
        row("continuous", 3.3, 0.8, 0.0, 4.1);
        row("beyond the bound, outwards", 25.0, 0.5, 0.5, 25.0);
        row("beyond the bound, inwards", 25.0, -0.5, 0.5, 20.0);
        row("no number", notANumber, 0.5, 0.5, -60.0);
        row("endless", infinity, 0.5, 0.5, infinity);
    }
    void steppedValue() { checkRow(); }

    void ratioOfLine_data()
    {
        const auto row = rowsOf([](double run, double rise, double expected) {
            QVERIFY(isSame(tamble::client::ratioOfLine(run, rise, 12.0), expected));
        });
        row("4 : 1", 20.0, 5.0, 4.0);
        row("expansion", 20.0, 40.0, 0.5);
        row("flat", 20.0, 0.0, 12.0);
        row("falling", 20.0, -1.0, 12.0);
        row("no run", 0.0, 5.0, notANumber);
        row("run backwards", -3.0, 5.0, notANumber);
        row("no number", 20.0, notANumber, notANumber);
    }
    void ratioOfLine() { checkRow(); }

    void heightOfCurve_data()
    {
        const auto row = rowsOf([](const CurvePoints &points, double x, double expected) {
            QVERIFY(isSame(tamble::client::heightOfCurve(points, x), expected));
        });
        const CurvePoints drop{{0, 1}, {0.5, 0.5}, {0.5, 0.75}, {1, 0.25}};

        row("first point", drop, 0.0, 1.0);
        row("on a slope", drop, 0.25, 0.75);
        row("behind the jump", drop, 0.5, 0.75);
        row("last point", drop, 1.0, 0.25);
        row("on the floor before the curve", {{0.25, 1}, {0.5, 0.75}, {0.5, 0.5}}, 0.125, 1.0);
        row("no curve", {}, 0.5, notANumber);
        row("no place", drop, notANumber, notANumber);
    }
    void heightOfCurve() { checkRow(); }
};

template struct TestClass<tst_HandleValues>;
#include "tst_HandleValues.moc"
