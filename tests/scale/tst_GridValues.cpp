#include "scale/GridValues.h"
#include "scale/NumberText.h"
#include "scale/ScaleSteps.h"
#include "support/Numbers.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

using namespace tamble::client;
using namespace Qt::StringLiterals;

namespace {

constexpr AxisScale linear = AxisScale::Linear;
constexpr AxisScale logarithmic = AxisScale::Logarithmic;

} // namespace

class tst_GridValues : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void axisRange_data()
    {
        const auto row =
            rowsOf([](double from, double to, const AxisScale &scale, double value, double position, double valueBack) {
                const AxisRange range{from, to, scale};
                QCOMPARE(range.toPosition(value), position);
                QCOMPARE(range.toValue(position), valueBack);
            });
        row("linear", -60.0, 20.0, linear, -40.0, 0.25, -40.0);
        row("backwards", 20.0, -60.0, linear, -40.0, 0.75, -40.0);
        row("logarithmic", 20.0, 20000.0, logarithmic, 200.0, 1 / 3.0, 200.0);
        row("logarithmic, backwards", 20000.0, 20.0, logarithmic, 200.0, 2 / 3.0, 200.0);
        row("below", -60.0, 20.0, linear, -infinity, 0.0, -60.0);
        row("above", 20.0, 20000.0, logarithmic, 1e9, 1.0, 20000.0);
        row("below 0 on a logarithmic scale", 20.0, 20000.0, logarithmic, -5.0, 0.0, 20.0);
        row("NaN", -60.0, 20.0, linear, notANumber, 0.0, -60.0);
        row("empty", 3.0, 3.0, linear, 3.0, 0.0, 3.0);
        row("logarithmic from 0", 0.0, 20000.0, logarithmic, 200.0, 0.0, 0.0);
        row("infinite bound", 1.0, infinity, linear, 200.0, 0.0, 1.0);
    }
    void axisRange() { checkRow(); }

    void gridValues_data()
    {
        const auto row = rowsOf(
            [](const AxisRange &range, double step, double origin, bool includeEnds, const QList<double> &expected) {
                const QList<double> values = tamble::client::gridValues({range, step, origin, includeEnds}).value();
                QCOMPARE(values.size(), expected.size());
                for (qsizetype i = 0; i < values.size(); ++i)
                    QVERIFY2(qAbs(values[i] - expected[i]) < 1e-12, qPrintable(QString::number(values[i], 'g', 17)));
            });
        using Values = QList<double>;

        row("multiples", {-25, 25, linear}, 10.0, 0.0, false, Values{-20, -10, 0, 10, 20});
        row("with ends", {-25, 25, linear}, 20.0, 0.0, true, Values{-25, -20, 0, 20, 25});
        row("ends that are multiples", {-20, 20, linear}, 20.0, 0.0, true, Values{-20, 0, 20});
        row("ends only", {1, 9, linear}, 100.0, 0.0, true, Values{1, 9});
        row("origin", {0, 10, linear}, 4.0, 1.0, false, Values{1, 5, 9});
        row("rounding keeps the bound", {0, 0.7, linear}, 0.1, 0.0, false,
            Values{0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7});
        row("backwards", {10, -10, linear}, 10.0, 0.0, false, Values{-10, 0, 10});
        row("no multiple inside", {1, 9, linear}, 100.0, 0.0, false, Values());
        row("empty range", {1, 1, linear}, 1.0, 0.0, false, Values());
        row("logarithmic, the step does not matter", {80, 3000, logarithmic}, -1.0, 0.0, false,
            Values{80, 90, 100, 200, 300, 400, 500, 600, 700, 800, 900, 1000, 2000, 3000});
        row("logarithmic under 1", {0.25, 1, logarithmic}, 1.0, 0.0, true,
            Values{0.25, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 1});
        row("logarithmic from 0", {0, 100, logarithmic}, 1.0, 0.0, true, Values());
    }
    void gridValues() { checkRow(); }

    void outOfRange_data()
    {
        const auto row = rowsOf([](const AxisRange &range, double step, double origin, bool valid) {
            QCOMPARE(tamble::client::gridValues({range, step, origin}).has_value(), valid);
        });
        const AxisRange hundred{0, 100, linear};
        row("0", hundred, 0.0, 0.0, false);
        row("NaN", hundred, notANumber, 0.0, false);
        row("1001 lines", hundred, 0.1, 0.0, false);
        row("1000 lines", hundred, 0.10005, 0.0, true);
        row("denormal", hundred, 5e-324, 0.0, false);
        row("infinite", hundred, infinity, 0.0, false);
        row("origin without steps in between", hundred, 1.0, 1e30, false);
        row("origin with half of the steps", hundred, 1.0, 1e16, false);
        row("origin far away", hundred, 1.0, 1e15, true);
        row("infinite origin", hundred, 1.0, infinity, false);
        row("NaN origin", hundred, 1.0, notANumber, false);
        row("range of large numbers", {1e17, 1e17 + 64, linear}, 1.0, 1e17, false);
        row("range of large numbers, wide steps", {1e17, 1e17 + 64, linear}, 32.0, 1e17, true);
    }
    void outOfRange() { checkRow(); }

    void thinned_data()
    {
        const auto row = rowsOf([](const AxisRange &range, int maximum, const QList<double> &expected) {
            QCOMPARE(thinnedGridValues({range, 10.0}, maximum).value(), expected);
        });
        using Values = QList<double>;

        const AxisRange decibels{-60, 20, linear};
        row("enough room", decibels, 9, Values{-60, -50, -40, -30, -20, -10, 0, 10, 20});
        row("every 2nd", decibels, 8, Values{-60, -40, -20, 0, 20});
        row("every 5th", decibels, 4, Values{-50, 0});
        row("every 10th", decibels, 1, Values{0});
        row("one remains", {10, 40, linear}, 1, Values{20});
        row("more than 1000 before", {0, 100000, linear}, 3, Values{0, 50000, 100000});
        const AxisRange hertz{20, 20000, logarithmic};
        row("1, 2, 5", hertz, 12, Values{20, 50, 100, 200, 500, 1000, 2000, 5000, 10000, 20000});
        row("powers of ten", hertz, 5, Values{100, 1000, 10000});
        row("every 2nd power", hertz, 2, Values{100, 10000});
    }
    void thinned() { checkRow(); }

    void numberText_data()
    {
        const auto row = rowsOf([](double value, int decimals, const AxisScale &scale, const QString &text) {
            QCOMPARE(tamble::client::numberText(value, decimals, scale), text);
        });
        row("fixed", 2.5, 2, linear, u"2.50"_s);
        row("minus zero", -0.0, 0, linear, u"0"_s);
        row("rounds to zero", -0.004, 2, linear, u"0.00"_s);
        row("automatic", -0.5, -1, linear, u"-0.5"_s);
        row("automatic minus zero", -0.0, -1, linear, u"0"_s);
        row("linear thousand", 1000.0, 0, linear, u"1000"_s);
        row("logarithmic thousand", 1000.0, -1, logarithmic, u"1k"_s);
        row("logarithmic fraction", 1500.0, -1, logarithmic, u"1.5k"_s);
        row("logarithmic under a thousand", 900.0, -1, logarithmic, u"900"_s);
        row("logarithmic, fixed", 20000.0, 1, logarithmic, u"20.0k"_s);
    }
    void numberText() { checkRow(); }

    void decimalsOfStep_data()
    {
        const auto row =
            rowsOf([](double step, int decimals) { QCOMPARE(tamble::client::decimalsOfStep(step), decimals); });
        row("0.1", 0.1, 1);
        row("2.5", 2.5, 1);
        row("negative", -0.5, 1);
        row("a third", 1.0 / 3.0, 10);
        row("NaN", notANumber, 0);
        row("infinite", infinity, 0);
    }
    void decimalsOfStep() { checkRow(); }

    void niceStep_data()
    {
        const auto row = rowsOf([](double minimum, double step) { QCOMPARE(niceStepAtLeast(minimum), step); });
        row("above 1", 1.1, 2.0);
        row("above 2", 2.1, 5.0);
        row("above 5", 5.1, 10.0);
        row("rounding stays on the step", 0.1 + 0.2 - 0.1, 0.2);
        row("NaN", notANumber, 0.0);
        row("infinite", infinity, 0.0);
    }
    void niceStep() { checkRow(); }
};

template struct TestClass<tst_GridValues>;
#include "tst_GridValues.moc"
