#include "scale/AxisTicks.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <limits>

using namespace tamble::client;
using namespace Qt::StringLiterals;

class tst_AxisTicks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void step_data()
    {
        const auto row = rowsOf([](double minimum, double maximum, double count, double expected) {
            QCOMPARE(axisStep(minimum, maximum, count), expected);
        });
        row("relative 0.5", 0.0, 100.0, 5.0, 50.0);
        row("relative 0.116", -80.0, 6.0, 10.0, 10.0);
        row("relative 0.4", 0.0, 100.0, 4.0, 50.0);
        row("relative 1", 0.0, 100.0, 10.0, 20.0);
    }
    void step() { checkRow(); }

    void ticks_data()
    {
        using Limits = std::numeric_limits<double>;
        const auto row = rowsOf([](double minimum, double maximum, double count, const QString &expected) {
            QStringList labels;
            for (const AxisTick &tick : axisTicks(minimum, maximum, count, 280.0))
                labels << tick.label;
            QCOMPARE(labels.join(u' '), expected);
        });
        row("tenths", 0.0, 1.0, 28.0, u"0 0.1 0.2 0.3 0.4 0.5 0.6 0.7 0.8 0.9 1"_s);
        row("bounds between ticks", -86.0, 6.0, 10.0, u"-80 -70 -60 -50 -40 -30 -20 -10 0"_s);
        row("zero has no sign", -0.5, 10.0, 2.0, u"0 10"_s);
        row("small values", 0.0, 2e-7, 4.0, u"0 1e-07 2e-07"_s);
        row("count 0", 0.0, 1.0, 0.0, {});
        row("empty range", 5.0, 5.0, 10.0, {});
        row("reversed range", 6.0, -80.0, 10.0, {});
        row("NaN bound", 0.0, Limits::quiet_NaN(), 10.0, {});
        row("infinite bound", 0.0, Limits::infinity(), 10.0, {});
        row("range wider than the numbers", -Limits::max(), Limits::max(), 10.0, {});
        row("NaN count", 0.0, 1.0, Limits::quiet_NaN(), {});
    }
    void ticks() { checkRow(); }

    void tickPlaces()
    {
        const QList<AxisTick> ticks = axisTicks(-10, 40, 5, 100);
        QCOMPARE(ticks, QList<AxisTick>({{80, u"0"_s}, {40, u"20"_s}, {0, u"40"_s}}));
    }

    void hugeCountEnds()
    {
        // The step stays that of the count, so the ticks end before the range does.
        const QList<AxisTick> ticks = axisTicks(0, 5000, 50000, 280);
        QCOMPARE(ticks.size(), 2000);
        QCOMPARE(ticks.last().label, u"399.8"_s);
    }
};

template struct TestClass<tst_AxisTicks>;
#include "tst_AxisTicks.moc"
