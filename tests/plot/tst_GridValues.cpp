#include "plot/GridValues.h"
#include "plot/NumberText.h"
#include "plot/ScaleSteps.h"
#include "support/Numbers.h"
#include "support/TestProgram.h"

#include <QtCore/QObject>
#include <QtTest/QTest>

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
    void axisRange_data();
    void axisRange();
    void gridValues_data();
    void gridValues();
    void outOfRange_data();
    void outOfRange();
    void thinned_data();
    void thinned();
    void numberText_data();
    void numberText();
    void decimalsOfStep_data();
    void decimalsOfStep();
    void niceStep_data();
    void niceStep();
};

void tst_GridValues::axisRange_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<AxisScale>("scale");
    QTest::addColumn<double>("value");
    QTest::addColumn<double>("position");
    QTest::addColumn<double>("valueBack");

    QTest::newRow("linear") << -60.0 << 20.0 << linear << -40.0 << 0.25 << -40.0;
    QTest::newRow("backwards") << 20.0 << -60.0 << linear << -40.0 << 0.75 << -40.0;
    QTest::newRow("logarithmic") << 20.0 << 20000.0 << logarithmic << 200.0 << 1 / 3.0 << 200.0;
    QTest::newRow("logarithmic, backwards") << 20000.0 << 20.0 << logarithmic << 200.0 << 2 / 3.0 << 200.0;
    QTest::newRow("below") << -60.0 << 20.0 << linear << -infinity << 0.0 << -60.0;
    QTest::newRow("above") << 20.0 << 20000.0 << logarithmic << 1e9 << 1.0 << 20000.0;
    QTest::newRow("below 0 on a logarithmic scale") << 20.0 << 20000.0 << logarithmic << -5.0 << 0.0 << 20.0;
    QTest::newRow("NaN") << -60.0 << 20.0 << linear << notANumber << 0.0 << -60.0;
    QTest::newRow("empty") << 3.0 << 3.0 << linear << 3.0 << 0.0 << 3.0;
    QTest::newRow("logarithmic from 0") << 0.0 << 20000.0 << logarithmic << 200.0 << 0.0 << 0.0;
    QTest::newRow("infinite bound") << 1.0 << infinity << linear << 200.0 << 0.0 << 1.0;
}

void tst_GridValues::axisRange()
{
    QFETCH(double, from);
    QFETCH(double, to);
    QFETCH(AxisScale, scale);
    QFETCH(double, value);
    QFETCH(double, position);
    const AxisRange range{from, to, scale};
    QCOMPARE(range.toPosition(value), position);
    QTEST(range.toValue(position), "valueBack");
}

void tst_GridValues::gridValues_data()
{
    QTest::addColumn<AxisRange>("range");
    QTest::addColumn<double>("step");
    QTest::addColumn<double>("origin");
    QTest::addColumn<bool>("includeEnds");
    QTest::addColumn<QList<double>>("expected");
    using Values = QList<double>;

    QTest::newRow("multiples") << AxisRange{-25, 25, linear} << 10.0 << 0.0 << false << Values{-20, -10, 0, 10, 20};
    QTest::newRow("with ends") << AxisRange{-25, 25, linear} << 20.0 << 0.0 << true << Values{-25, -20, 0, 20, 25};
    QTest::newRow("ends that are multiples") << AxisRange{-20, 20, linear} << 20.0 << 0.0 << true << Values{-20, 0, 20};
    QTest::newRow("ends only") << AxisRange{1, 9, linear} << 100.0 << 0.0 << true << Values{1, 9};
    QTest::newRow("origin") << AxisRange{0, 10, linear} << 4.0 << 1.0 << false << Values{1, 5, 9};
    QTest::newRow("rounding keeps the bound")
        << AxisRange{0, 0.7, linear} << 0.1 << 0.0 << false << Values{0, 0.1, 0.2, 0.3, 0.4, 0.5, 0.6, 0.7};
    QTest::newRow("backwards") << AxisRange{10, -10, linear} << 10.0 << 0.0 << false << Values{-10, 0, 10};
    QTest::newRow("no multiple inside") << AxisRange{1, 9, linear} << 100.0 << 0.0 << false << Values();
    QTest::newRow("empty range") << AxisRange{1, 1, linear} << 1.0 << 0.0 << false << Values();
    QTest::newRow("logarithmic, the step does not matter")
        << AxisRange{80, 3000, logarithmic} << -1.0 << 0.0 << false
        << Values{80, 90, 100, 200, 300, 400, 500, 600, 700, 800, 900, 1000, 2000, 3000};
    QTest::newRow("logarithmic under 1") << AxisRange{0.25, 1, logarithmic} << 1.0 << 0.0 << true
                                         << Values{0.25, 0.3, 0.4, 0.5, 0.6, 0.7, 0.8, 0.9, 1};
    QTest::newRow("logarithmic from 0") << AxisRange{0, 100, logarithmic} << 1.0 << 0.0 << true << Values();
}

void tst_GridValues::gridValues()
{
    QFETCH(AxisRange, range);
    QFETCH(double, step);
    QFETCH(double, origin);
    QFETCH(bool, includeEnds);
    QFETCH(QList<double>, expected);
    const QList<double> values = tamble::client::gridValues({range, step, origin, includeEnds}).value();
    QCOMPARE(values.size(), expected.size());
    for (qsizetype i = 0; i < values.size(); ++i)
        QVERIFY2(qAbs(values[i] - expected[i]) < 1e-12, qPrintable(QString::number(values[i], 'g', 17)));
}

void tst_GridValues::outOfRange_data()
{
    QTest::addColumn<AxisRange>("range");
    QTest::addColumn<double>("step");
    QTest::addColumn<double>("origin");
    QTest::addColumn<bool>("valid");
    const AxisRange hundred{0, 100, linear};
    QTest::newRow("0") << hundred << 0.0 << 0.0 << false;
    QTest::newRow("negative") << hundred << -1.0 << 0.0 << false;
    QTest::newRow("NaN") << hundred << notANumber << 0.0 << false;
    QTest::newRow("1001 lines") << hundred << 0.1 << 0.0 << false;
    QTest::newRow("1000 lines") << hundred << 0.10005 << 0.0 << true;
    QTest::newRow("denormal") << hundred << 5e-324 << 0.0 << false;
    QTest::newRow("infinite") << hundred << infinity << 0.0 << false;
    QTest::newRow("origin without steps in between") << hundred << 1.0 << 1e30 << false;
    QTest::newRow("origin with half of the steps") << hundred << 1.0 << 1e16 << false;
    QTest::newRow("origin far away") << hundred << 1.0 << 1e15 << true;
    QTest::newRow("infinite origin") << hundred << 1.0 << infinity << false;
    QTest::newRow("NaN origin") << hundred << 1.0 << notANumber << false;
    QTest::newRow("range of large numbers") << AxisRange{1e17, 1e17 + 64, linear} << 1.0 << 1e17 << false;
    QTest::newRow("range of large numbers, wide steps") << AxisRange{1e17, 1e17 + 64, linear} << 32.0 << 1e17 << true;
}

void tst_GridValues::outOfRange()
{
    QFETCH(AxisRange, range);
    QFETCH(double, step);
    QFETCH(double, origin);
    QTEST(tamble::client::gridValues({range, step, origin}).has_value(), "valid");
}

void tst_GridValues::thinned_data()
{
    QTest::addColumn<AxisRange>("range");
    QTest::addColumn<int>("maximum");
    QTest::addColumn<QList<double>>("expected");
    using Values = QList<double>;

    const AxisRange decibels{-60, 20, linear};
    QTest::newRow("all") << decibels << 0 << Values{-60, -50, -40, -30, -20, -10, 0, 10, 20};
    QTest::newRow("enough room") << decibels << 9 << Values{-60, -50, -40, -30, -20, -10, 0, 10, 20};
    QTest::newRow("every 2nd") << decibels << 8 << Values{-60, -40, -20, 0, 20};
    QTest::newRow("every 5th") << decibels << 4 << Values{-50, 0};
    QTest::newRow("every 10th") << decibels << 1 << Values{0};
    QTest::newRow("one remains") << AxisRange{10, 40, linear} << 1 << Values{20};
    QTest::newRow("more than 1000 before") << AxisRange{0, 100000, linear} << 3 << Values{0, 50000, 100000};
    const AxisRange hertz{20, 20000, logarithmic};
    QTest::newRow("1, 2, 5") << hertz << 12 << Values{20, 50, 100, 200, 500, 1000, 2000, 5000, 10000, 20000};
    QTest::newRow("powers of ten") << hertz << 5 << Values{100, 1000, 10000};
    QTest::newRow("every 2nd power") << hertz << 2 << Values{100, 10000};
}

void tst_GridValues::thinned()
{
    QFETCH(AxisRange, range);
    QFETCH(int, maximum);
    QTEST(thinnedGridValues({range, 10.0}, maximum).value(), "expected");
}

void tst_GridValues::numberText_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<AxisScale>("scale");
    QTest::addColumn<QString>("text");

    QTest::newRow("fixed") << 2.5 << 2 << linear << u"2.50"_s;
    QTest::newRow("minus zero") << -0.0 << 0 << linear << u"0"_s;
    QTest::newRow("rounds to zero") << -0.004 << 2 << linear << u"0.00"_s;
    QTest::newRow("automatic") << -0.5 << -1 << linear << u"-0.5"_s;
    QTest::newRow("automatic minus zero") << -0.0 << -1 << linear << u"0"_s;
    QTest::newRow("linear thousand") << 1000.0 << 0 << linear << u"1000"_s;
    QTest::newRow("logarithmic thousand") << 1000.0 << -1 << logarithmic << u"1k"_s;
    QTest::newRow("logarithmic fraction") << 1500.0 << -1 << logarithmic << u"1.5k"_s;
    QTest::newRow("logarithmic under a thousand") << 900.0 << -1 << logarithmic << u"900"_s;
    QTest::newRow("logarithmic, fixed") << 20000.0 << 1 << logarithmic << u"20.0k"_s;
}

void tst_GridValues::numberText()
{
    QFETCH(double, value);
    QFETCH(int, decimals);
    QFETCH(AxisScale, scale);
    QTEST(tamble::client::numberText(value, decimals, scale), "text");
}

void tst_GridValues::decimalsOfStep_data()
{
    QTest::addColumn<double>("step");
    QTest::addColumn<int>("decimals");
    QTest::newRow("10") << 10.0 << 0;
    QTest::newRow("0.1") << 0.1 << 1;
    QTest::newRow("0.25") << 0.25 << 2;
    QTest::newRow("2.5") << 2.5 << 1;
    QTest::newRow("negative") << -0.5 << 1;
    QTest::newRow("0.001") << 0.001 << 3;
    QTest::newRow("a third") << 1.0 / 3.0 << 10;
    QTest::newRow("NaN") << notANumber << 0;
    QTest::newRow("infinite") << infinity << 0;
}

void tst_GridValues::decimalsOfStep()
{
    QFETCH(double, step);
    QTEST(tamble::client::decimalsOfStep(step), "decimals");
}

void tst_GridValues::niceStep_data()
{
    QTest::addColumn<double>("minimum");
    QTest::addColumn<double>("step");
    QTest::newRow("1") << 1.0 << 1.0;
    QTest::newRow("above 1") << 1.1 << 2.0;
    QTest::newRow("above 2") << 2.1 << 5.0;
    QTest::newRow("above 5") << 5.1 << 10.0;
    QTest::newRow("rounding stays on the step") << 0.1 + 0.2 - 0.1 << 0.2;
    QTest::newRow("0") << 0.0 << 0.0;
    QTest::newRow("NaN") << notANumber << 0.0;
    QTest::newRow("infinite") << infinity << 0.0;
}

void tst_GridValues::niceStep()
{
    QFETCH(double, minimum);
    QTEST(niceStepAtLeast(minimum), "step");
}

template struct TestClass<tst_GridValues>;
#include "tst_GridValues.moc"
