#include "bodeplot/CurvePixels.h"
#include "bodeplot/FrameGridLines.h"
#include "bodeplot/FrameTicks.h"
#include "bodeplot/LimiterLine.h"
#include "support/Numbers.h"
#include "support/TestProgram.h"

#include <QtCore/QObject>
#include <QtGui/QPolygonF>
#include <QtTest/QTest>

#include <cmath>

using namespace tamble::client;

namespace {

using Numbers = QList<double>;
using Points = QList<QPointF>;
using Lines = QList<Points>;

AxisRange linear(double from, double to)
{
    return {from, to, AxisScale::Linear};
}

AxisRange logarithmic(double from, double to)
{
    return {from, to, AxisScale::Logarithmic};
}

/// Numbers that a test can compare with literals although they come from multiplications.
QString inWords(const Numbers &numbers)
{
    QStringList words;
    for (const double number : numbers)
        words.append(QString::number(std::round(number * 1e6) / 1e6, 'g', 9));
    return words.join(u' ');
}

QString inWords(const Points &points)
{
    Numbers numbers;
    for (const QPointF &point : points)
        numbers << point.x() << point.y();
    return inWords(numbers);
}

QString inWords(const Lines &lines)
{
    QStringList words;
    for (const Points &line : lines)
        words.append(inWords(line));
    return words.join(QStringLiteral(" | "));
}

} // namespace

/// What grid, axes and given curves of a plot frame are computed from.
class tst_FrameLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void ticks_data();
    void ticks();
    void problems_data();
    void problems();
    void choice_data();
    void choice();
    void labels_data();
    void labels();
    void readableLabels_data();
    void readableLabels();
    void gridPlaces();
    void crispLines_data();
    void crispLines();
    void columns_data();
    void columns();
    void curve_data();
    void curve();
    void limiter_data();
    void limiter();
    void limiterHandle_data();
    void limiterHandle();
    void thresholdSteps_data();
    void thresholdSteps();
};

void tst_FrameLines::init()
{
    QTest::failOnWarning(QRegularExpression(QStringLiteral(".*")));
}

void tst_FrameLines::ticks_data()
{
    QTest::addColumn<AxisRange>("axis");
    QTest::addColumn<double>("increment");
    QTest::addColumn<QString>("values");

    QTest::newRow("the minimum of a logarithmic axis is left out")
        << logarithmic(20, 20000) << 0.0
        << "30 40 50 60 70 80 90 100 200 300 400 500 600 700 800 900 "
           "1000 2000 3000 4000 5000 6000 7000 8000 9000 10000";
    QTest::newRow("power of ten as the minimum") << logarithmic(1000, 3500) << 0.0 << "2000 3000";
    QTest::newRow("minimum in the last digit") << logarithmic(95, 250) << 0.0 << "100 200";
    QTest::newRow("fractions reach the whole number") << logarithmic(0.3, 2.5) << 0.0 << "0.4 0.5 0.6 0.7 0.8 0.9 1 2";
    QTest::newRow("negative minimum is rounded up") << linear(-25, 25) << 10.0 << "-20 -10 0 10 20";
    QTest::newRow("positive minimum is rounded down, below itself") << linear(25, 50) << 10.0 << "20 30 40";
    QTest::newRow("multiples are labelled at the minimum only") << linear(-30, 30) << 10.0 << "-30 -20 -10 0 10 20";
    QTest::newRow("fractions of a linear axis") << linear(-0.3, 0.3) << 0.1 << "-0.3 -0.2 -0.1 0 0.1 0.2";
    QTest::newRow("increment beyond the range") << linear(-5, 5) << 1e300 << "0";
    QTest::newRow("values too large to count on") << linear(1e18, 1e18 + 1000) << 1000.0 << "1e+18";
    QTest::newRow("reversed") << linear(10, -10) << 1.0 << "";
    QTest::newRow("reversed logarithmic") << logarithmic(100, 10) << 1.0 << "";
    QTest::newRow("empty") << linear(5, 5) << 1.0 << "";
    QTest::newRow("no number") << linear(notANumber, 5) << 1.0 << "";
    QTest::newRow("infinite") << logarithmic(20, infinity) << 1.0 << "";
}

void tst_FrameLines::ticks()
{
    QFETCH(AxisRange, axis);
    QFETCH(double, increment);
    QFETCH(QString, values);

    const FrameTicks ticks = frameTicks(axis, increment);
    QCOMPARE(inWords(ticks.values), values);
    QVERIFY(ticks.problem == TickProblem::None);
}

void tst_FrameLines::problems_data()
{
    QTest::addColumn<AxisRange>("axis");
    QTest::addColumn<double>("increment");
    QTest::addColumn<TickProblem>("problem");

    QTest::newRow("no increment") << linear(-10, 10) << 0.0 << TickProblem::IncrementNotPositive;
    QTest::newRow("negative increment") << linear(-10, 10) << -5.0 << TickProblem::IncrementNotPositive;
    QTest::newRow("increment that is no number") << linear(-10, 10) << notANumber << TickProblem::IncrementNotPositive;
    QTest::newRow("logarithm of 0") << logarithmic(0, 20000) << 10.0 << TickProblem::MinimumNotPositive;
    QTest::newRow("logarithm of less") << logarithmic(-20, 20000) << 10.0 << TickProblem::MinimumNotPositive;
    QTest::newRow("tiny increment") << linear(-25, 25) << 1e-9 << TickProblem::TooManyTicks;
    QTest::newRow("range without end") << linear(-1.7e308, 1.7e308) << 1.0 << TickProblem::TooManyTicks;
    QTest::newRow("hundreds of decades") << logarithmic(1e-300, 1e300) << 1.0 << TickProblem::TooManyTicks;
}

void tst_FrameLines::problems()
{
    QFETCH(AxisRange, axis);
    QFETCH(double, increment);
    QFETCH(TickProblem, problem);

    const FrameTicks ticks = frameTicks(axis, increment);
    QVERIFY(ticks.values.isEmpty());
    QVERIFY(ticks.problem == problem);
}

void tst_FrameLines::choice_data()
{
    QTest::addColumn<QVariantList>("listed");
    QTest::addColumn<double>("value");
    QTest::addColumn<bool>("chosen");

    QTest::newRow("empty list chooses all") << QVariantList() << 70.0 << true;
    QTest::newRow("listed") << QVariantList{50, 100.0} << 100.0 << true;
    QTest::newRow("not listed") << QVariantList{50, 100.0} << 70.0 << false;
    QTest::newRow("number as text") << QVariantList{QStringLiteral("100")} << 100.0 << true;
    QTest::newRow("a list of anything else is not empty")
        << QVariantList{QStringLiteral("x"), notANumber} << 100.0 << false;
    QTest::newRow("rounding of the multiplication") << QVariantList{0.3} << 3 * 0.1 << true;
    QTest::newRow("zero") << QVariantList{0} << 0.0 << true;
}

void tst_FrameLines::choice()
{
    QFETCH(QVariantList, listed);
    QFETCH(double, value);
    QFETCH(bool, chosen);

    QCOMPARE(TickChoice(listed).contains(value), chosen);
}

void tst_FrameLines::labels_data()
{
    QTest::addColumn<AxisRange>("axis");
    QTest::addColumn<double>("increment");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<QVariantList>("listed");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<Numbers>("positions");

    // Three decades on 300 pixels.
    QTest::newRow("logarithmic to the right")
        << logarithmic(20, 20000) << 0.0 << Qt::Horizontal << QVariantList{20, 200, 2000} << QStringList{"200", "2000"}
        << Numbers{100, 200};
    QTest::newRow("linear downwards") << linear(-20, 40) << 20.0 << Qt::Vertical << QVariantList{0, 20}
                                      << QStringList{"0", "20"} << Numbers{200, 100};
    QTest::newRow("first value below the minimum") << linear(25, 55) << 10.0 << Qt::Horizontal << QVariantList{}
                                                   << QStringList{"20", "30", "40", "50"} << Numbers{-50, 50, 150, 250};
    QTest::newRow("six digits") << linear(0, 3) << 1.2345678 << Qt::Horizontal << QVariantList{}
                                << QStringList{"0", "1.23457", "2.46914"} << Numbers{0, 123.45678, 246.91356};
    QTest::newRow("large numbers") << logarithmic(50000, 2100000) << 0.0 << Qt::Vertical << QVariantList{100000, 2e6}
                                   << QStringList{"100000", "2e+06"}
                                   << Numbers{300 - 300 * std::log(2.0) / std::log(42.0),
                                              300 - 300 * std::log(40.0) / std::log(42.0)};
}

void tst_FrameLines::labels()
{
    QFETCH(AxisRange, axis);
    QFETCH(double, increment);
    QFETCH(Qt::Orientation, orientation);
    QFETCH(QVariantList, listed);
    QFETCH(QStringList, texts);
    QFETCH(Numbers, positions);

    QStringList actualTexts;
    Numbers actualPositions;
    for (const FrameLabel &label :
         frameLabels(axis, frameTicks(axis, increment).values, TickChoice(listed), orientation, 300.0)) {
        actualTexts.append(label.text);
        actualPositions.append(label.position);
    }
    QCOMPARE(actualTexts, texts);
    QCOMPARE(inWords(actualPositions), inWords(positions));
}

void tst_FrameLines::readableLabels_data()
{
    QTest::addColumn<double>("length");
    QTest::addColumn<QStringList>("texts");

    // From 40 Hz a decade on the whole length, each label 20 pixels long: 40 to 100 Hz are four tenths of it.
    QTest::newRow("room for all") << 1000.0 << QStringList{"50", "60", "70", "80", "90", "100", "200", "300"};
    QTest::newRow("round numbers first") << 200.0 << QStringList{"50", "70", "100", "200", "300"};
    QTest::newRow("hardly any") << 60.0 << QStringList{"100", "300"};
}

void tst_FrameLines::readableLabels()
{
    QFETCH(double, length);
    QFETCH(QStringList, texts);

    const AxisRange axis = logarithmic(40, 400);
    const auto labels = frameLabels(axis, frameTicks(axis, 0.0).values, TickChoice({}), Qt::Horizontal, length);
    const QList<bool> readable = tamble::client::readableLabels(labels, Numbers(labels.size(), 20.0), 4.0);
    QStringList actual;
    for (qsizetype i = 0; i < labels.size(); ++i) {
        if (readable[i])
            actual.append(labels[i].text);
    }
    QCOMPARE(actual, texts);
}

void tst_FrameLines::gridPlaces()
{
    const GridPlaces all = tamble::client::gridPlaces(linear(-20, 20), 10.0, TickChoice({}));
    QCOMPARE(inWords(all.full), QStringLiteral("0.25 0.5 0.75")); // not at the ends
    QVERIFY(all.faint.isEmpty());

    const GridPlaces listed = tamble::client::gridPlaces(linear(-20, 20), 10.0, TickChoice({10, QStringLiteral("x")}));
    QCOMPARE(inWords(listed.full), QStringLiteral("0.75"));
    QCOMPARE(inWords(listed.faint), QStringLiteral("0.25 0.5"));

    // The first value, 20, lies below the minimum.
    QCOMPARE(inWords(tamble::client::gridPlaces(linear(25, 45), 10.0, TickChoice({})).full),
             QStringLiteral("0.25 0.75"));
}

void tst_FrameLines::crispLines_data()
{
    QTest::addColumn<double>("place");
    QTest::addColumn<Qt::Orientation>("orientation");
    QTest::addColumn<double>("pixelRatio");
    QTest::addColumn<double>("width");
    QTest::addColumn<Numbers>("band"); // from, to; none: no line

    // On 200 x 100 pixels.
    QTest::newRow("one pixel") << 0.251 << Qt::Vertical << 1.0 << 1.0 << Numbers{50, 51};
    QTest::newRow("two pixels around the place") << 0.251 << Qt::Vertical << 1.0 << 2.0 << Numbers{49, 51};
    QTest::newRow("horizontal lines count from the bottom") << 0.254 << Qt::Horizontal << 1.0 << 1.0 << Numbers{74, 75};
    QTest::newRow("dense screen") << 0.2525 << Qt::Vertical << 2.0 << 1.0 << Numbers{50, 51};
    QTest::newRow("half a pixel of a dense screen") << 0.2526 << Qt::Vertical << 2.0 << 0.5 << Numbers{50.5, 51};
    QTest::newRow("five quarters of a pixel become one") << 0.25 << Qt::Vertical << 1.25 << 1.0 << Numbers{49.6, 50.4};
    QTest::newRow("never thinner than a device pixel") << 0.251 << Qt::Vertical << 1.0 << 0.1 << Numbers{50, 51};
    QTest::newRow("inside at the bottom") << 0.0 << Qt::Horizontal << 1.0 << 2.0 << Numbers{98, 100};
    QTest::newRow("inside at the top") << 1.0 << Qt::Horizontal << 1.0 << 2.0 << Numbers{0, 2};
    QTest::newRow("no width") << 0.5 << Qt::Vertical << 1.0 << 0.0 << Numbers{};
    QTest::newRow("width that is no number") << 0.5 << Qt::Vertical << 1.0 << notANumber << Numbers{};
    QTest::newRow("place that is no number") << notANumber << Qt::Vertical << 1.0 << 1.0 << Numbers{};
}

void tst_FrameLines::crispLines()
{
    QFETCH(double, place);
    QFETCH(Qt::Orientation, orientation);
    QFETCH(double, pixelRatio);
    QFETCH(double, width);
    QFETCH(Numbers, band);

    const StrokeGeometry lines = tamble::client::crispLines({place}, orientation, {{200.0, 100.0}, pixelRatio}, width);
    QCOMPARE(lines.vertices.size(), band.isEmpty() ? 0 : 6);
    QRectF covered;
    if (!lines.vertices.isEmpty())
        covered = QPolygonF(lines.vertices).boundingRect();
    if (band.isEmpty())
        return;
    if (orientation == Qt::Vertical)
        QCOMPARE(covered, QRectF(QPointF(band[0], 0.0), QPointF(band[1], 100.0)));
    else
        QCOMPARE(covered, QRectF(QPointF(0.0, band[0]), QPointF(200.0, band[1])));
}

void tst_FrameLines::columns_data()
{
    QTest::addColumn<Points>("pixels");
    QTest::addColumn<Points>("reduced");

    QTest::newRow("two of a column stay")
        << Points{{0.1, 5}, {0.9, 5}, {1.5, 7}} << Points{{0.1, 5}, {0.9, 5}, {1.5, 7}};
    QTest::newRow("lowest before highest")
        << Points{{3.1, 5}, {3.2, 9}, {3.5, 6}, {3.7, 1}, {3.9, 4}} << Points{{3.2, 9}, {3.7, 1}};
    QTest::newRow("highest before lowest") << Points{{3.1, 5}, {3.2, 1}, {3.7, 9}} << Points{{3.2, 1}, {3.7, 9}};
    QTest::newRow("level column") << Points{{3.1, 5}, {3.2, 5}, {3.3, 5}, {3.9, 5}} << Points{{3.1, 5}, {3.9, 5}};
    QTest::newRow("a column that is visited twice is two") << Points{{0.5, 1}, {0.6, 2}, {1.5, 3}, {0.6, 4}, {0.5, 5}}
                                                           << Points{{0.5, 1}, {0.6, 2}, {1.5, 3}, {0.6, 4}, {0.5, 5}};
    QTest::newRow("columns left of the frame are columns too")
        << Points{{-0.5, 1}, {-0.4, 2}, {0.5, 3}} << Points{{-0.5, 1}, {-0.4, 2}, {0.5, 3}};
    QTest::newRow("nothing") << Points{} << Points{};
}

void tst_FrameLines::columns()
{
    QFETCH(Points, pixels);
    QFETCH(Points, reduced);

    QCOMPARE(inWords(reducedToColumns(pixels)), inWords(reduced));
}

void tst_FrameLines::curve_data()
{
    QTest::addColumn<Points>("points");
    QTest::addColumn<double>("trim");
    QTest::addColumn<FrameAxes>("axes");
    QTest::addColumn<Lines>("lines");
    QTest::addColumn<int>("visible");

    // 300 x 100 pixels: 100 Hz to 100 kHz has a decade on 100 pixels, -10 to 10 dB has 5 pixels a dB.
    const FrameAxes axes{logarithmic(100, 100000), linear(-10, 10)};
    const FrameAxes levels{linear(-10, 20), linear(-10, 10)};
    QTest::newRow("logarithmic") << Points{{100, 0}, {1000, 4}} << 0.0 << axes << Lines{{{0, 50}, {100, 30}}} << 2;
    QTest::newRow("linear") << Points{{-10, 0}, {0, -10}} << 0.0 << levels << Lines{{{0, 50}, {100, 100}}} << 2;
    QTest::newRow("trim") << Points{{100, 0}, {1000, 4}} << -4.0 << axes << Lines{{{0, 70}, {100, 50}}} << 2;
    QTest::newRow("cut at the left") << Points{{10, 0}, {1000, 10}} << 0.0 << axes << Lines{{{0, 25}, {100, 0}}} << 1;
    QTest::newRow("cut at the top") << Points{{100, 0}, {10000, 20}} << 0.0 << axes << Lines{{{0, 50}, {100, 0}}} << 1;
    QTest::newRow("cut below") << Points{{100, 0}, {1000, -20}, {10000, 0}} << 0.0 << axes
                               << Lines{{{0, 50}, {50, 100}}, {{150, 100}, {200, 50}}} << 2;
    QTest::newRow("broken by what is no number")
        << Points{{100, 0}, {1000, 0}, {2000, notANumber}, {10000, 2}, {100000, 2}} << 0.0 << axes
        << Lines{{{0, 50}, {100, 50}}, {{200, 40}, {300, 40}}} << 4;
    QTest::newRow("broken by 0 Hz") << Points{{100, 0}, {0, 0}, {1000, 0}, {10000, 0}} << 0.0 << axes
                                    << Lines{{{100, 50}, {200, 50}}} << 3;
    QTest::newRow("minus infinity is silence, not a line")
        << Points{{100, 0}, {1000, -infinity}} << 0.0 << axes << Lines{} << 1;
    QTest::newRow("huge numbers are cut")
        << Points{{1000, -1e300}, {1000, 1e300}} << 0.0 << axes << Lines{{{100, 100}, {100, 0}}} << 0;
    QTest::newRow("reversed frame") << Points{{100, 0}, {1000, 0}} << 0.0
                                    << FrameAxes{logarithmic(1000, 100), linear(-10, 10)} << Lines{} << 0;
    QTest::newRow("trim that is no number") << Points{{100, 0}, {1000, 0}} << notANumber << axes << Lines{} << 0;
}

void tst_FrameLines::curve()
{
    QFETCH(Points, points);
    QFETCH(double, trim);
    QFETCH(FrameAxes, axes);
    QFETCH(Lines, lines);
    QFETCH(int, visible);

    QCOMPARE(inWords(curvePixels({points, trim}, axes, {300.0, 100.0})), inWords(lines));
    QCOMPARE(visibleCount({points, trim}, axes), visible);
    QVERIFY(curvePixels({points, trim}, axes, {300.0, 0.0}).isEmpty());
}

void tst_FrameLines::limiter_data()
{
    QTest::addColumn<LimiterRule>("rule");
    QTest::addColumn<FrameAxes>("axes");
    QTest::addColumn<Points>("points");

    const FrameAxes levels{linear(-60, 20), linear(-60, 20)};
    const FrameAxes lower{linear(-60, 20), linear(-60, -20)};
    const FrameAxes frequencies{logarithmic(20, 20000), linear(-20, 20)};
    QTest::newRow("brick wall") << LimiterRule{-20, 0, false} << levels << Points{{0, 1}, {0.5, 0.5}, {1, 0.5}};
    QTest::newRow("ratio") << LimiterRule{-20, 4, false} << levels << Points{{0, 1}, {0.5, 0.5}, {1, 0.375}};
    QTest::newRow("endless ratio") << LimiterRule{-20, infinity, false} << levels
                                   << Points{{0, 1}, {0.5, 0.5}, {1, 0.5}};
    QTest::newRow("expanding ratio counts as 1")
        << LimiterRule{-20, 0.5, false} << levels << Points{{0, 1}, {0.5, 0.5}, {1, 0}};
    QTest::newRow("bypassed") << LimiterRule{-20, 0, true} << levels << Points{{0, 1}, {1, 0}};
    QTest::newRow("threshold right of the frame") << LimiterRule{30, 0, false} << levels << Points{{0, 1}, {1, 0}};
    QTest::newRow("threshold left of the frame") << LimiterRule{-80, 2, false} << lower << Points{{0.25, 1}, {1, 0.25}};
    QTest::newRow("cut at the top") << LimiterRule{0, 0, false} << lower << Points{{0, 1}, {0.5, 0}};
    QTest::newRow("level line over frequencies")
        << LimiterRule{-10, 4, false} << frequencies << Points{{0, 0.75}, {1, 0.75}};
    QTest::newRow("bypassed over frequencies") << LimiterRule{-10, 4, true} << frequencies << Points{};
    QTest::newRow("above the frame") << LimiterRule{21, 0, false} << frequencies << Points{};
    QTest::newRow("threshold that is no number") << LimiterRule{notANumber, 0, false} << levels << Points{};
    QTest::newRow("ratio that is no number") << LimiterRule{0, notANumber, false} << levels << Points{};
    QTest::newRow("empty frame") << LimiterRule{} << FrameAxes{linear(0, 0), linear(-60, 20)} << Points{};
}

void tst_FrameLines::limiter()
{
    QFETCH(LimiterRule, rule);
    QFETCH(FrameAxes, axes);
    QFETCH(Points, points);

    QCOMPARE(inWords(limiterLine(rule, axes)), inWords(points));
}

void tst_FrameLines::limiterHandle_data()
{
    QTest::addColumn<FrameAxes>("axes");
    QTest::addColumn<double>("threshold");
    QTest::addColumn<QPointF>("handle");
    QTest::addColumn<QPointF>("pointer");
    QTest::addColumn<double>("moved");

    const FrameAxes levels{linear(-60, 20), linear(-60, 20)};
    const FrameAxes frequencies{logarithmic(20, 20000), linear(-20, 20)};
    QTest::newRow("level") << frequencies << 10.0 << QPointF(0.5, 0.25) << QPointF(0.9, 0.75) << -10.0;
    QTest::newRow("level stays in the frame") << frequencies << 30.0 << QPointF(0.5, 0) << QPointF(0.5, 1.5) << -20.0;
    // The pointer is at -40 dB of input and 0 dB of output.
    QTest::newRow("along the diagonal") << levels << -20.0 << QPointF(0.5, 0.5) << QPointF(0.25, 0.25) << -20.0;
    QTest::newRow("common part of both levels")
        << FrameAxes{linear(-60, 20), linear(-40, 0)} << -50.0 << QPointF(0.125, 1) << QPointF(0, 1) << -40.0;
    QTest::newRow("no common part") << FrameAxes{linear(-60, -40), linear(-20, 0)} << -50.0 << QPointF(0.5, 1)
                                    << QPointF(0.5, 0.5) << notANumber;
    QTest::newRow("pointer that is nowhere") << levels << 20.0 << QPointF(1, 0) << QPointF(notANumber, 0) << notANumber;
}

void tst_FrameLines::limiterHandle()
{
    QFETCH(FrameAxes, axes);
    QFETCH(double, threshold);
    QFETCH(QPointF, handle);
    QFETCH(QPointF, pointer);
    QFETCH(double, moved);

    QCOMPARE(tamble::client::limiterHandle({threshold, 0.0, false}, axes), handle);
    QCOMPARE(thresholdNear(pointer, axes), moved);
}

void tst_FrameLines::thresholdSteps_data()
{
    QTest::addColumn<double>("threshold");
    QTest::addColumn<double>("difference");
    QTest::addColumn<double>("moved");

    QTest::newRow("inside") << 3.0 << 0.5 << 3.5;
    QTest::newRow("stops at the edge") << 19.8 << 0.5 << 20.0;
    QTest::newRow("does not jump inside") << -80.0 << 0.5 << -79.5;
    QTest::newRow("does not go further out") << -80.0 << -0.5 << -80.0;
    QTest::newRow("no number") << notANumber << 0.5 << notANumber;
}

void tst_FrameLines::thresholdSteps()
{
    QFETCH(double, threshold);
    QFETCH(double, difference);
    QFETCH(double, moved);

    QCOMPARE(thresholdMovedBy(threshold, difference, FrameAxes()), moved);
}

template struct TestClass<tst_FrameLines>;
#include "tst_FrameLines.moc"
