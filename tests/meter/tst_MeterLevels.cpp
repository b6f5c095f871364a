#include "meter/MeterLevels.h"
#include "support/Numbers.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

using namespace tamble::client;

class tst_MeterLevels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void displayedLevel_data()
    {
        const auto row = rowsOf([](double minimum, double maximum, double level, double displayed) {
            QCOMPARE(tamble::client::displayedLevel({minimum, maximum, 0.0}, level), displayed);
        });
        row("inside", -80.0, 6.0, -20.0, -20.0);
        row("below", -80.0, 6.0, -100.0, -80.0);
        row("above", -80.0, 6.0, 20.0, 6.0);
        row("NaN", -80.0, 6.0, notANumber, -80.0);
        row("infinite", -80.0, 6.0, infinity, 6.0);
        row("reversed range ends at its maximum", 6.0, -80.0, -20.0, -80.0);
    }
    void displayedLevel() { checkRow(); }

    void fractions_data()
    {
        const auto row = rowsOf([](double minimum, double maximum, double split, double level, double zone, double bar,
                                   double upper, double lower) {
            const MeterRange range{minimum, maximum, split};
            QCOMPARE(barFraction(range, level, zone), bar);
            QCOMPARE(upperFraction(range, level, zone), upper);
            QCOMPARE(lowerFraction(range, level, zone), lower);
        });
        row("level under the zone", -80.0, 20.0, 0.0, 5.0, 10.0, 0.85, 0.25, -0.125);
        row("level over the zone", -80.0, 20.0, 0.0, 15.0, 10.0, 0.9, 0.5, -0.1875);
        row("level under the split point", -80.0, 20.0, 0.0, -20.0, -40.0, 0.4, -2.0, 0.25);
        row("level at the minimum lights the lower section only", -80.0, 20.0, 0.0, -80.0, -80.0, 0.0, 0.0, 1.0);
        row("level under the minimum", -80.0, 20.0, 0.0, -81.0, -40.0, 0.0, 0.0, 0.0);
        row("zone under the minimum", -80.0, 20.0, 0.0, -20.0, -90.0, 0.0, 0.0, 0.0);
        row("level and zone over the maximum", -80.0, 20.0, 0.0, 30.0, 40.0, 1.0, 1.0, -0.5);
        row("empty range", 0.0, 0.0, 0.0, 5.0, 5.0, 0.0, 0.0, 0.0);
        row("split at the maximum", -80.0, 20.0, 20.0, -30.0, -30.0, 0.5, 0.0, 0.5);
        row("split at the minimum", -80.0, 20.0, -80.0, -30.0, -30.0, 0.5, 0.5, 0.0);
        row("NaN level", -80.0, 20.0, 0.0, notANumber, 10.0, 0.0, 0.0, 0.0);
        row("NaN minimum", notANumber, 20.0, 0.0, 5.0, 10.0, 0.0, 0.25, 0.0);
        row("infinite maximum", -80.0, infinity, 0.0, 5.0, 10.0, 0.0, 0.0, -0.125);
        row("infinite minimum", -infinity, 20.0, 0.0, 5.0, 10.0, 0.0, 0.25, 0.0);
    }
    void fractions() { checkRow(); }
};

template struct TestClass<tst_MeterLevels>;
#include "tst_MeterLevels.moc"
