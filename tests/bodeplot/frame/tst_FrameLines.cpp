#include "bodeplot/frame/FrameGridLines.h"
#include "bodeplot/frame/FrameTicks.h"
#include "bodeplot/response/CurvePixels.h"
#include "bodeplot/response/LimiterLine.h"
#include "support/Numbers.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtGui/QPolygonF>

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
class tst_FrameLines : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void ticks_data()
    {
        const auto row = rowsOf([](const AxisRange &axis, double increment, const QString &values) {
            const FrameTicks ticks = frameTicks(axis, increment);
            QCOMPARE(inWords(ticks.values), values);
            QVERIFY(ticks.problem == TickProblem::None);
        });
        row("the minimum of a logarithmic axis is left out", logarithmic(20, 20000), 0.0,
            "30 40 50 60 70 80 90 100 200 300 400 500 600 700 800 900 "
            "1000 2000 3000 4000 5000 6000 7000 8000 9000 10000");
        row("power of ten as the minimum", logarithmic(1000, 3500), 0.0, "2000 3000");
        row("minimum in the last digit", logarithmic(95, 250), 0.0, "100 200");
        row("fractions reach the whole number", logarithmic(0.3, 2.5), 0.0, "0.4 0.5 0.6 0.7 0.8 0.9 1 2");
        row("negative minimum is rounded up", linear(-25, 25), 10.0, "-20 -10 0 10 20");
        row("positive minimum is rounded down, below itself", linear(25, 50), 10.0, "20 30 40");
        row("multiples are labelled at the minimum only", linear(-30, 30), 10.0, "-30 -20 -10 0 10 20");
        row("fractions of a linear axis", linear(-0.3, 0.3), 0.1, "-0.3 -0.2 -0.1 0 0.1 0.2");
        row("increment beyond the range", linear(-5, 5), 1e300, "0");
        row("values too large to count on", linear(1e18, 1e18 + 1000), 1000.0, "1e+18");
        row("reversed", linear(10, -10), 1.0, "");
        row("no number", linear(notANumber, 5), 1.0, "");
        row("infinite", logarithmic(20, infinity), 1.0, "");
    }
    void ticks() { checkRow(); }

    void problems_data()
    {
        const auto row = rowsOf([](const AxisRange &axis, double increment, const TickProblem &problem) {
            const FrameTicks ticks = frameTicks(axis, increment);
            QVERIFY(ticks.values.isEmpty());
            QVERIFY(ticks.problem == problem);
        });
        row("no increment", linear(-10, 10), 0.0, TickProblem::IncrementNotPositive);
        row("increment that is no number", linear(-10, 10), notANumber, TickProblem::IncrementNotPositive);
        row("logarithm of 0", logarithmic(0, 20000), 10.0, TickProblem::MinimumNotPositive);
        row("tiny increment", linear(-25, 25), 1e-9, TickProblem::TooManyTicks);
        row("range without end", linear(-1.7e308, 1.7e308), 1.0, TickProblem::TooManyTicks);
        row("hundreds of decades", logarithmic(1e-300, 1e300), 1.0, TickProblem::TooManyTicks);
    }
    void problems() { checkRow(); }

    void choice_data()
    {
        const auto row = rowsOf([](const QVariantList &listed, double value, bool chosen) {
            QCOMPARE(TickChoice(listed).contains(value), chosen);
        });
        row("empty list chooses all", {}, 70.0, true);
        row("not listed", {50, 100.0}, 70.0, false);
        row("number as text", {QStringLiteral("100")}, 100.0, true);
        row("a list of anything else is not empty", {QStringLiteral("x"), notANumber}, 100.0, false);
        row("rounding of the multiplication", {0.3}, 3 * 0.1, true);
        row("zero", {0}, 0.0, true);
    }
    void choice() { checkRow(); }

    void labels_data()
    {
        const auto row = rowsOf([](const AxisRange &axis, double increment, const Qt::Orientation &orientation,
                                   const QVariantList &listed, const QStringList &texts, const Numbers &positions) {
            QStringList actualTexts;
            Numbers actualPositions;
            for (const FrameLabel &label :
                 frameLabels(axis, frameTicks(axis, increment).values, TickChoice(listed), orientation, 300.0)) {
                actualTexts.append(label.text);
                actualPositions.append(label.position);
            }
            QCOMPARE(actualTexts, texts);
            QCOMPARE(inWords(actualPositions), inWords(positions));
        });
        // Three decades on 300 pixels.
        row("logarithmic to the right", logarithmic(20, 20000), 0.0, Qt::Horizontal, {20, 200, 2000}, {"200", "2000"},
            {100, 200});
        row("linear downwards", linear(-20, 40), 20.0, Qt::Vertical, {0, 20}, {"0", "20"}, {200, 100});
        row("first value below the minimum", linear(25, 55), 10.0, Qt::Horizontal, {}, {"20", "30", "40", "50"},
            {-50, 50, 150, 250});
        row("six digits", linear(0, 3), 1.2345678, Qt::Horizontal, {}, {"0", "1.23457", "2.46914"},
            {0, 123.45678, 246.91356});
        row("large numbers", logarithmic(50000, 2100000), 0.0, Qt::Vertical, {100000, 2e6}, {"100000", "2e+06"},
            {300 - 300 * std::log(2.0) / std::log(42.0), 300 - 300 * std::log(40.0) / std::log(42.0)});
    }
    void labels() { checkRow(); }

    void readableLabels_data()
    {
        const auto row = rowsOf([](double length, const QStringList &texts) {
            const AxisRange axis = logarithmic(40, 400);
            const auto labels = frameLabels(axis, frameTicks(axis, 0.0).values, TickChoice({}), Qt::Horizontal, length);
            const QList<bool> readable = tamble::client::readableLabels(labels, Numbers(labels.size(), 20.0), 4.0);
            QStringList actual;
            for (qsizetype i = 0; i < labels.size(); ++i) {
                if (readable[i])
                    actual.append(labels[i].text);
            }
            QCOMPARE(actual, texts);
        });
        // From 40 Hz a decade on the whole length, each label 20 pixels long: 40 to 100 Hz are four tenths of it.
        row("room for all", 1000.0, {"50", "60", "70", "80", "90", "100", "200", "300"});
        row("round numbers first", 200.0, {"50", "70", "100", "200", "300"});
        row("hardly any", 60.0, {"100", "300"});
    }
    void readableLabels() { checkRow(); }

    void gridPlaces()
    {
        const GridPlaces all = tamble::client::gridPlaces(linear(-20, 20), 10.0, TickChoice({}));
        QCOMPARE(inWords(all.full), QStringLiteral("0.25 0.5 0.75")); // not at the ends
        QVERIFY(all.faint.isEmpty());

        const GridPlaces listed =
            tamble::client::gridPlaces(linear(-20, 20), 10.0, TickChoice({10, QStringLiteral("x")}));
        QCOMPARE(inWords(listed.full), QStringLiteral("0.75"));
        QCOMPARE(inWords(listed.faint), QStringLiteral("0.25 0.5"));

        // The first value, 20, lies below the minimum.
        QCOMPARE(inWords(tamble::client::gridPlaces(linear(25, 45), 10.0, TickChoice({})).full),
                 QStringLiteral("0.25 0.75"));
    }

    void crispLines_data()
    {
        // band: from, to; none: no line
        const auto row = rowsOf(
            [](double place, const Qt::Orientation &orientation, double pixelRatio, double width, const Numbers &band) {
                const StrokeGeometry lines =
                    tamble::client::crispLines({place}, orientation, {{200.0, 100.0}, pixelRatio}, width);
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
            });
        // On 200 x 100 pixels.
        row("one pixel", 0.251, Qt::Vertical, 1.0, 1.0, {50, 51});
        row("two pixels around the place", 0.251, Qt::Vertical, 1.0, 2.0, {49, 51});
        row("horizontal lines count from the bottom", 0.254, Qt::Horizontal, 1.0, 1.0, {74, 75});
        row("half a pixel of a dense screen", 0.2526, Qt::Vertical, 2.0, 0.5, {50.5, 51});
        row("five quarters of a pixel become one", 0.25, Qt::Vertical, 1.25, 1.0, {49.6, 50.4});
        row("never thinner than a device pixel", 0.251, Qt::Vertical, 1.0, 0.1, {50, 51});
        row("inside at the bottom", 0.0, Qt::Horizontal, 1.0, 2.0, {98, 100});
        row("inside at the top", 1.0, Qt::Horizontal, 1.0, 2.0, {0, 2});
        row("no width", 0.5, Qt::Vertical, 1.0, 0.0, {});
        row("width that is no number", 0.5, Qt::Vertical, 1.0, notANumber, {});
        row("place that is no number", notANumber, Qt::Vertical, 1.0, 1.0, {});
    }
    void crispLines() { checkRow(); }

    void columns_data()
    {
        const auto row = rowsOf([](const Points &pixels, const Points &reduced) {
            QCOMPARE(inWords(reducedToColumns(pixels)), inWords(reduced));
        });
        row("two of a column stay", {{0.1, 5}, {0.9, 5}, {1.5, 7}}, {{0.1, 5}, {0.9, 5}, {1.5, 7}});
        row("lowest before highest", {{3.1, 5}, {3.2, 9}, {3.5, 6}, {3.7, 1}, {3.9, 4}}, {{3.2, 9}, {3.7, 1}});
        row("highest before lowest", {{3.1, 5}, {3.2, 1}, {3.7, 9}}, {{3.2, 1}, {3.7, 9}});
        row("level column", {{3.1, 5}, {3.2, 5}, {3.3, 5}, {3.9, 5}}, {{3.1, 5}, {3.9, 5}});
        row("a column that is visited twice is two", {{0.5, 1}, {0.6, 2}, {1.5, 3}, {0.6, 4}, {0.5, 5}},
            {{0.5, 1}, {0.6, 2}, {1.5, 3}, {0.6, 4}, {0.5, 5}});
        row("columns left of the frame are columns too", {{-0.5, 1}, {-0.4, 2}, {0.5, 3}},
            {{-0.5, 1}, {-0.4, 2}, {0.5, 3}});
    }
    void columns() { checkRow(); }

    void curve_data()
    {
        const auto row =
            rowsOf([](const Points &points, double trim, const PlotAxes &axes, const Lines &lines, int visible) {
                QCOMPARE(inWords(curvePixels({points, trim}, axes, {300.0, 100.0})), inWords(lines));
                QCOMPARE(visibleCount({points, trim}, axes), visible);
                QVERIFY(curvePixels({points, trim}, axes, {300.0, 0.0}).isEmpty());
            });
        // 300 x 100 pixels: 100 Hz to 100 kHz has a decade on 100 pixels, -10 to 10 dB has 5 pixels a dB.
        const PlotAxes levels{linear(-10, 20), linear(-10, 10)};
        const PlotAxes axes{logarithmic(100, 100000), linear(-10, 10)};
        row("logarithmic", {{100, 0}, {1000, 4}}, 0.0, axes, {{{0, 50}, {100, 30}}}, 2);
        row("linear", {{-10, 0}, {0, -10}}, 0.0, levels, {{{0, 50}, {100, 100}}}, 2);
        row("trim", {{100, 0}, {1000, 4}}, -4.0, axes, {{{0, 70}, {100, 50}}}, 2);
        row("cut at the left", {{10, 0}, {1000, 10}}, 0.0, axes, {{{0, 25}, {100, 0}}}, 1);
        row("cut at the top", {{100, 0}, {10000, 20}}, 0.0, axes, {{{0, 50}, {100, 0}}}, 1);
        row("cut below", {{100, 0}, {1000, -20}, {10000, 0}}, 0.0, axes,
            {{{0, 50}, {50, 100}}, {{150, 100}, {200, 50}}}, 2);
        row("broken by what is no number", {{100, 0}, {1000, 0}, {2000, notANumber}, {10000, 2}, {100000, 2}}, 0.0,
            axes, {{{0, 50}, {100, 50}}, {{200, 40}, {300, 40}}}, 4);
        row("broken by 0 Hz", {{100, 0}, {0, 0}, {1000, 0}, {10000, 0}}, 0.0, axes, {{{100, 50}, {200, 50}}}, 3);
        row("minus infinity is silence, not a line", {{100, 0}, {1000, -infinity}}, 0.0, axes, {}, 1);
        row("huge numbers are cut", {{1000, -1e300}, {1000, 1e300}}, 0.0, axes, {{{100, 100}, {100, 0}}}, 0);
        row("reversed frame", {{100, 0}, {1000, 0}}, 0.0, {logarithmic(1000, 100), linear(-10, 10)}, {}, 0);
        row("trim that is no number", {{100, 0}, {1000, 0}}, notANumber, axes, {}, 0);
    }
    void curve() { checkRow(); }

    void limiter_data()
    {
        const auto row = rowsOf([](const LimiterRule &rule, const PlotAxes &axes, const Points &points) {
            QCOMPARE(inWords(limiterLine(rule, axes)), inWords(points));
        });
        const PlotAxes levels{linear(-60, 20), linear(-60, 20)};
        const PlotAxes lower{linear(-60, 20), linear(-60, -20)};
        const PlotAxes frequencies{logarithmic(20, 20000), linear(-20, 20)};
        row("brick wall", {-20, 0, false}, levels, {{0, 1}, {0.5, 0.5}, {1, 0.5}});
        row("ratio", {-20, 4, false}, levels, {{0, 1}, {0.5, 0.5}, {1, 0.375}});
        row("endless ratio", {-20, infinity, false}, levels, {{0, 1}, {0.5, 0.5}, {1, 0.5}});
        row("expanding ratio counts as 1", {-20, 0.5, false}, levels, {{0, 1}, {0.5, 0.5}, {1, 0}});
        row("bypassed", {-20, 0, true}, levels, {{0, 1}, {1, 0}});
        row("threshold right of the frame", {30, 0, false}, levels, {{0, 1}, {1, 0}});
        row("threshold left of the frame", {-80, 2, false}, lower, {{0.25, 1}, {1, 0.25}});
        row("cut at the top", {0, 0, false}, lower, {{0, 1}, {0.5, 0}});
        row("level line over frequencies", {-10, 4, false}, frequencies, {{0, 0.75}, {1, 0.75}});
        row("bypassed over frequencies", {-10, 4, true}, frequencies, {});
        row("above the frame", {21, 0, false}, frequencies, {});
        row("threshold that is no number", {notANumber, 0, false}, levels, {});
        row("ratio that is no number", {0, notANumber, false}, levels, {});
        row("empty frame", {}, {linear(0, 0), linear(-60, 20)}, {});
    }
    void limiter() { checkRow(); }

    void limiterHandle_data()
    {
        const auto row = rowsOf(
            [](const PlotAxes &axes, double threshold, const QPointF &handle, const QPointF &pointer, double moved) {
                QCOMPARE(tamble::client::limiterHandle({threshold, 0.0, false}, axes), handle);
                QCOMPARE(thresholdNear(pointer, axes), moved);
            });
        const PlotAxes levels{linear(-60, 20), linear(-60, 20)};
        const PlotAxes frequencies{logarithmic(20, 20000), linear(-20, 20)};
        row("level", frequencies, 10.0, QPointF(0.5, 0.25), QPointF(0.9, 0.75), -10.0);
        row("level stays in the frame", frequencies, 30.0, QPointF(0.5, 0), QPointF(0.5, 1.5), -20.0);
        // The pointer is at -40 dB of input and 0 dB of output.
        row("along the diagonal", levels, -20.0, QPointF(0.5, 0.5), QPointF(0.25, 0.25), -20.0);
        row("common part of both levels", {linear(-60, 20), linear(-40, 0)}, -50.0, QPointF(0.125, 1), QPointF(0, 1),
            -40.0);
        row("no common part", {linear(-60, -40), linear(-20, 0)}, -50.0, QPointF(0.5, 1), QPointF(0.5, 0.5),
            notANumber);
        row("pointer that is nowhere", levels, 20.0, QPointF(1, 0), QPointF(notANumber, 0), notANumber);
    }
    void limiterHandle() { checkRow(); }

    void thresholdSteps_data()
    {
        const auto row = rowsOf([](double threshold, double difference, double moved) {
            QCOMPARE(thresholdMovedBy(threshold, difference, PlotAxes()), moved);
        });
        row("inside", 3.0, 0.5, 3.5);
        row("stops at the edge", 19.8, 0.5, 20.0);
        row("does not jump inside", -80.0, 0.5, -79.5);
        row("does not go further out", -80.0, -0.5, -80.0);
        row("no number", notANumber, 0.5, notANumber);
    }
    void thresholdSteps() { checkRow(); }
};

template struct TestClass<tst_FrameLines>;
#include "tst_FrameLines.moc"
