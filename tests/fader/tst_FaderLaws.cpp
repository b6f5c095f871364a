#include "fader/FaderDrag.h"
#include "fader/FaderTravel.h"
#include "fader/TransferTable.h"
#include "support/Numbers.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

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
    void tables_data()
    {
        const auto row = rowsOf([](double minimum, double maximum, int points, double first) {
            const std::vector<TransferPoint> table = transferTable(minimum, maximum);
            QCOMPARE(int(table.size()), points);
            QCOMPARE(table.front().level, first);
            QCOMPARE(table.front().position, 0.0);
            QCOMPARE(table.back().level, maximum);
            QCOMPARE(table.back().position, 1.0);
        });
        row("-81 to 10 has the table of -80", -81.0, 10.0, 9, -80.0);
        row("-81 to 42 has none", -81.0, 42.0, 2, -81.0);
        row("nearly -80", -80.001, 10.0, 2, -80.001);
    }
    void tables() { checkRow(); }

    void tableMaps_data()
    {
        const auto row = rowsOf([](double minimum, double maximum, double level, double position) {
            QVERIFY(isNear(positionByTable(level, minimum, maximum), position, 1e-12));
            QVERIFY(isNear(levelByTable(position, minimum, maximum), level, 1e-9));
            QCOMPARE(positionByTable(minimum - 1, minimum, maximum), 0.0);
            QCOMPARE(positionByTable(maximum + 1, minimum, maximum), 1.0);
            QCOMPARE(levelByTable(-0.1, minimum, maximum), minimum);
            QCOMPARE(levelByTable(1.1, minimum, maximum), maximum);
        });
        row("point", -80.0, 10.0, -5.0, 0.625);
        row("between points", -80.0, 10.0, -25.0, 0.225);
        row("top", -80.0, 10.0, 10.0, 1.0);
        row("between points to 42", -80.0, 42.0, 36.0, 0.925);
        row("linear without a table", -60.0, 0.0, -15.0, 0.75);
    }
    void tableMaps() { checkRow(); }

    void travel_data()
    {
        const auto row = rowsOf([](const FaderLaw &law, double from, double to, double level, double position) {
            QVERIFY(isNear(FaderTravel({from, to, law}).position(level), position, 5e-4));
        });
        row("linear", FaderLaw::Linear, -80.0, 10.0, -35.0, 0.5);
        row("exponential at -20", FaderLaw::Exponential, -80.0, 10.0, -20.0, 0.292);
        row("exponential at 0", FaderLaw::Exponential, -80.0, 10.0, 0.0, 0.669);
        row("table", FaderLaw::Table, -80.0, 10.0, 0.0, 0.75);
        row("table under its own first point", FaderLaw::Table, -81.0, 10.0, -80.5, 0.0);
        row("over the range", FaderLaw::Linear, -80.0, 10.0, 25.0, 1.0);
        row("infinite", FaderLaw::Linear, -80.0, 10.0, infinity, 1.0);
        row("not a number", FaderLaw::Exponential, -80.0, 10.0, notANumber, 0.0);
        row("reversed", FaderLaw::Linear, 10.0, -80.0, -57.5, 0.75);
        row("reversed exponential", FaderLaw::Exponential, 10.0, -80.0, 0.0, 1.0 - 0.669);
        row("a reversed table is linear", FaderLaw::Table, 10.0, -80.0, -57.5, 0.75);
        row("overflowing exponential is linear", FaderLaw::Exponential, 0.0, 40000.0, 10000.0, 0.25);
        row("empty range", FaderLaw::Table, 5.0, 5.0, 5.0, 0.0);
        row("range without an end", FaderLaw::Linear, -80.0, notANumber, 0.0, 0.0);
    }
    void travel() { checkRow(); }

    void everyPlaceComesBack_data()
    {
        const Rows<FaderLaw, double> row;
        row("linear", FaderLaw::Linear, 10.0);
        row("exponential", FaderLaw::Exponential, 10.0);
        row("table to 10", FaderLaw::Table, 10.0);
        row("table to 42", FaderLaw::Table, 42.0);
    }

    // Properties of any law: the way back leads to the same place, upwards is louder, and the ends are exact.
    void everyPlaceComesBack()
    {
        const auto &[law, to] = Rows<FaderLaw, double>::current();
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

    void rounding_data()
    {
        const auto row = rowsOf([](double from, double to, double step, double level, double rounded) {
            QCOMPARE(FaderTravel({from, to, FaderLaw::Linear}).rounded(level, step), rounded);
        });
        row("to the nearest", -80.0, 10.0, 0.5, -12.2, -12.0);
        row("from counts, not 0", -80.3, 10.0, 0.5, -12.2, -12.3);
        row("without noise", -80.0, 10.0, 0.1, -9.68, -9.7);
        row("continuous", -80.0, 10.0, 0.0, -12.2, -12.2);
        row("step that is not a number", -80.0, 10.0, notANumber, -12.2, -12.2);
        row("upper end off the grid", -80.0, 10.0, 40.0, 9.0, 10.0);
        row("under the upper end", -80.0, 10.0, 40.0, 3.0, 0.0);
        row("reversed", 10.0, -80.0, 0.5, -12.2, -12.0);
        row("outside", -80.0, 10.0, 0.5, 25.0, 10.0);
    }
    void rounding() { checkRow(); }

    void steps()
    {
        const FaderTravel travel;
        double level = -10.0;
        for (int i = 0; i < 3; ++i)
            level = travel.stepped(level, 0.1);
        QVERIFY2(level == -9.7, "three steps of 0.1 without the noise of binary fractions");
        QCOMPARE(travel.stepped(9.9, 3.0), 10.0);
        QCOMPARE(travel.stepped(-80.0, -3.0), -80.0);
    }

    // 100 pixels of travel over 100 dB, reach 1 pixel: detents hold within 1 dB.
    void detents_data()
    {
        const auto row = rowsOf([](double level, double held) {
            const FaderTravel travel{-90.0, 10.0, FaderLaw::Linear};
            QCOMPARE(travel.held(level, travel.position(level), {0.0, 1.0, 10.2}, 0.01), held);
        });
        row("at the detent", 0.0, 0.0);
        row("within reach", -0.8, 0.0);
        row("out of reach", -1.2, -1.2);
        row("the nearer of two", 0.6, 1.0);
        row("one outside of the range", 9.5, 9.5);
    }
    void detents() { checkRow(); }

    void drag()
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
};

template struct TestClass<tst_FaderLaws>;
#include "tst_FaderLaws.moc"
