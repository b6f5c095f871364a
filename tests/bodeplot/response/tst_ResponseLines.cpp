#include "bodeplot/response/ResponseLines.h"
#include "bodeplot/response/ResponseOutline.h"
#include "scenegraph/FrameClip.h"
#include "scenegraph/SmoothStroke.h"
#include "support/Numbers.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <algorithm>
#include <cmath>
#include <limits>

using namespace tamble::client;
using tamble::common::BodePlotCalculationResults;

namespace {

using Points = QList<QPointF>;
using Runs = QList<Points>;

/// One response in a view, with what is drawn of it.
struct Drawn
{
    Drawn(std::vector<double> response, const ResponseView &shown, bool wraps = false)
        : values(std::move(response))
        , view(shown)
    {
        view.resolution = int(values.size());
        const LevelScale scale(view, 0.0);
        columnSamples(view, samples);
        scaleColumns(values, samples, scale, columns);
        responseOutline({values, samples, columns, scale, wraps}, view, outline);
    }

    double highest() const
    {
        return std::ranges::min(outline.points, {}, [](const QPointF &p) { return p.y(); }).y();
    }
    double lowest() const
    {
        return std::ranges::max(outline.points, {}, [](const QPointF &p) { return p.y(); }).y();
    }

    std::vector<double> values;
    ResponseView view;
    std::vector<int> samples;
    std::vector<double> columns;
    PolylineRuns outline;
};

ResponseView viewOf(double width, double height)
{
    ResponseView view;
    view.size = {width, height};
    return view;
}

} // namespace

/// From a computed response to pixel columns and drawn vertices.
class tst_ResponseLines : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void clipping_data()
    {
        // inside: of the frame from (0, 0) to (10, 10)
        const auto row = rowsOf(
            [](const Points &line, const Runs &inside) { QCOMPARE(clipPolyline(line, QRectF(0, 0, 10, 10)), inside); });
        row("leaves at the top", {{0, 5}, {4, 5}, {6, -5}}, {{{0, 5}, {4, 5}, {5, 0}}});
        row("passes through", {{-5, -5}, {15, 15}}, {{{0, 0}, {10, 10}}});
        row("leaves and comes back", {{0, 5}, {2, 15}, {4, 15}, {6, 5}}, {{{0, 5}, {1, 10}}, {{5, 10}, {6, 5}}});
        row("stays above", {{0, -1}, {10, -3}}, {});
        row("around a corner", {{-1, 5}, {-1, -1}, {5, -1}}, {});
        row("broken", {{1, 1}, {2, 2}, {notANumber, 3}, {4, 4}, {5, 5}}, {{{1, 1}, {2, 2}}, {{4, 4}, {5, 5}}});
        row("lonely point", {{1, 1}, {2, notANumber}, {3, 3}, {4, 4}}, {{{3, 3}, {4, 4}}});
        row("infinite", {{1, 1}, {2, std::numeric_limits<double>::infinity()}}, {});
    }
    void clipping() { checkRow(); }

    void columnsFollowTheRange_data()
    {
        // outside: -2: none
        const auto row = rowsOf([](double xMinimum, double xMaximum, int first, int middle, int outside) {
            ResponseView view = viewOf(100.9, 50.0);
            view.axes.x.from = xMinimum;
            view.axes.x.to = xMaximum;
            const Drawn drawn(std::vector<double>(3000, 0.0), view);
            QCOMPARE(drawn.samples.size(), std::size_t(100));
            QCOMPARE(drawn.samples[0], first);
            QCOMPARE(drawn.samples[50], middle);
            QCOMPARE(firstOutside(drawn.samples, 3000).value_or(-2), outside);
            QCOMPARE(std::isnan(drawn.columns[0]), first < 0);
        });
        // 3000 values over three decades from 20 Hz, on 100 columns.
        row("whole range", 20.0, 20000.0, 0, 1500, -2);
        row("middle decade", 200.0, 2000.0, 1000, 1500, -2);
        row("beyond the end", 2000.0, 200000.0, 2000, 3000, 3000);
        row("before the beginning", 2.0, 20.0, -1000, -500, -1000);
        row("no range", 0.0, 0.0, 0, 0, -2);
    }
    void columnsFollowTheRange() { checkRow(); }

    void levels_data()
    {
        // y: of 400 rows
        const auto row = rowsOf([](double minimum, double maximum, double value, double trim, double y) {
            ResponseView view = viewOf(100.0, 400.0);
            view.axes.y.from = minimum;
            view.axes.y.to = maximum;
            QCOMPARE(LevelScale(view, trim)(value), y);
        });
        row("0 dB in the middle", -20.0, 20.0, 0.0, 0.0, 200.0);
        row("trimmed", -20.0, 20.0, 4.0, 6.0, 100.0);
        row("above the frame", -20.0, 20.0, 30.0, 0.0, -100.0);
        row("range turned over", 20.0, -20.0, 10.0, 0.0, 300.0);
        row("empty range", 5.0, 5.0, 5.0, 0.0, 400.0);
        row("range is no number", notANumber, 20.0, 0.0, 0.0, 400.0);
        row("trim is no number", -20.0, 20.0, 0.0, notANumber, 400.0);
    }
    void levels() { checkRow(); }

    void narrowBandIsNeverShortened_data()
    {
        const auto row = rowsOf([](double width, int place) {
            // A peak and, next to it, a notch of a single value each.
            std::vector<double> values(4096, 0.0);
            values[std::size_t(place)] = 12.0;
            values[std::size_t(place) - 1] = -17.0;
            const Drawn drawn(values, viewOf(width, 400.0));
            QCOMPARE(drawn.highest(), 80.0);
            QCOMPARE(drawn.lowest(), 370.0);
            QVERIFY(drawn.outline.points.size() <= std::size_t(width) + 4);
            QVERIFY(std::ranges::is_sorted(drawn.outline.points, {}, [](const QPointF &p) { return p.x(); }));
        });
        for (const int width : {40, 399, 1200, 4000}) {
            for (const int place : {1, 1007, 2049, 4094})
                row(qPrintable(QString::asprintf("%d pixels, value %d", width, place)), double(width), place);
        }
    }
    void narrowBandIsNeverShortened() { checkRow(); }

    void straightStretchesNeedNoVertices()
    {
        // A smooth band, with one value per column.
        std::vector<double> values(1200);
        for (std::size_t i = 0; i < values.size(); ++i)
            values[i] = 12.0 * std::exp(-std::pow((double(i) - 600.0) / 60.0, 2.0));
        const Drawn drawn(values, viewOf(1199.0, 400.0));
        const std::vector<QPointF> &points = drawn.outline.points;
        QVERIFY(points.size() < 150);
        std::size_t next = 1;
        for (std::size_t i = 1; i + 1 < values.size(); ++i) {
            while (points[next].x() < double(i))
                ++next;
            const QPointF &from = points[next - 1];
            const QPointF way = points[next] - from;
            const double drawnY = from.y() + (double(i) - from.x()) * way.y() / way.x();
            QVERIFY(std::abs(drawnY - (200.0 - 10.0 * values[i])) < 0.06);
        }
    }

    void zoomedInEveryValueIsAVertex()
    {
        // Four values on 300 pixels: no steps of columns that share a value.
        const Drawn drawn({0.0, 10.0, -10.0, 20.0}, viewOf(300.0, 40.0));
        const std::vector<QPointF> expected{{0, 20}, {100, 10}, {200, 30}, {300, 0}};
        QCOMPARE(drawn.outline.points.size(), expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i)
            QCOMPARE(drawn.outline.points[i], expected[i]);
        QCOMPARE(drawn.outline.ends, std::vector<std::size_t>{4});
    }

    void lineEndsWithTheComputedRange()
    {
        ResponseView view = viewOf(400.0, 40.0);
        view.axes.x.from = 2.0;
        view.axes.x.to = 20000.0;
        const Drawn wide(std::vector<double>(4096, 0.0), view);
        QCOMPARE(wide.outline.points.front().x(), 100.0);
        QCOMPARE(wide.outline.points.back().x(), 400.0);

        view.axes.x.from = 30000.0;
        view.axes.x.to = 40000.0;
        QVERIFY(Drawn(std::vector<double>(4096, 0.0), view).outline.points.empty());

        view.axes.x.from = 20000.0;
        view.axes.x.to = 20.0;
        const Drawn backwards({0.0, 10.0}, view);
        QCOMPARE(backwards.outline.points.front(), QPointF(400.0, 20.0));
        QCOMPARE(backwards.outline.points.back(), QPointF(0.0, 10.0));
    }

    void wrappedPhaseHasNoSmear()
    {
        ResponseView view = viewOf(300.0, 360.0);
        view.axes.y.from = -180.0;
        view.axes.y.to = 180.0;
        // 150 to 210 degrees: over the top half way between the second and the third value; then back.
        const Drawn drawn({120.0, 150.0, -150.0, 150.0}, view, true);
        QCOMPARE(drawn.outline.ends, (std::vector<std::size_t>{3, 6, 8}));
        const std::vector<QPointF> expected{{0, 60},    {100, 30},  {150, 0}, {150, 360},
                                            {200, 330}, {250, 360}, {250, 0}, {300, 30}};
        for (std::size_t i = 0; i < expected.size(); ++i)
            QCOMPARE(drawn.outline.points[i], expected[i]);

        // Half a turn is a real jump, as at a notch.
        QCOMPARE(Drawn({-90.0, -90.0, 90.0, 90.0}, view, true).outline.count(), std::size_t(1));
    }

    void areaStaysInTheFrame()
    {
        PolylineRuns line;
        line.points = {{-5, 50}, {5, 50}, {15, -50}, {25, 150}};
        line.ends = {4};
        PolylineRuns area;
        areaOutline(line, QRectF(0, 0, 20, 100), 60.0, area);
        // Enters at the left, goes over the top at 10, comes back at 17.5; the right edge cuts the way down at the
        // axis.
        const std::vector<QPointF> expected{{0, 50},   {0, 50},  {5, 50},  {10, 0},   {15, 0},
                                            {17.5, 0}, {20, 50}, {20, 60}, {20, 100}, {20, 100}};
        QCOMPARE(area.points.size(), expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i)
            QCOMPARE(area.points[i], expected[i]);
    }

    void onlyChangedLinesAreNew()
    {
        BodePlotCalculationResults results;
        results.items.resize(3);
        for (auto &item : results.items) {
            item.magnitude.assign(4096, 6.0);
            item.phase.assign(4096, 15.0);
        }
        results.aggregated = results.items.front();
        ResponseLines::Settings settings;
        settings.view = viewOf(100.0, 40.0);
        const std::vector<bool> shown{true, true, false};
        ResponseLines lines;
        const auto changed = [&] {
            std::vector<unsigned> before{lines.aggregated().revision};
            for (const ResponseLine &line : lines.records())
                before.push_back(line.revision);
            before.resize(4);
            lines.update(results, settings, shown);
            QByteArray letters;
            for (std::size_t i = 0; i < 4; ++i) {
                const unsigned now = i == 0 ? lines.aggregated().revision : lines.records()[i - 1].revision;
                letters += now == before[i] ? '-' : "S012"[i];
            }
            return letters;
        };
        QCOMPARE(changed(), "S01-");
        QCOMPARE(changed(), "----");
        lines.recordChanged(1);
        QCOMPARE(changed(), "S-1-");
        settings.trim = 3.0;
        QCOMPARE(changed(), "S---");
        QCOMPARE(lines.aggregated().columns[7], 11.0);
        QCOMPARE(lines.records()[0].columns[7], 14.0);
        settings.phase = true;
        QCOMPARE(changed(), "S01-");
        settings.view.size = {0.5, 40.0};
        QCOMPARE(changed(), "S01-");
        QCOMPARE(lines.aggregated().points.count(), std::size_t(0));
    }

    void strokeCorners()
    {
        // Width 3 at two device pixels per pixel: half of 6 and half a pixel for the edge, that is 1.75 pixels.
        std::vector<StrokeVertex> strip;
        appendSmoothStroke(std::vector<QPointF>{{0, 0}, {10, 0}, {10, 0}, {20, 0}}, {3.0, 2.0}, strip);
        const std::vector<StrokeVertex> straight{{0, 1.75f, 3.5f},    {0, -1.75f, -3.5f}, {10, 1.75f, 3.5f},
                                                 {10, -1.75f, -3.5f}, {20, 1.75f, 3.5f},  {20, -1.75f, -3.5f}};
        QVERIFY(strip == straight);

        // The tip of a spike is not drawn beyond the edge of its width.
        strip.clear();
        appendSmoothStroke(std::vector<QPointF>{{0, 0}, {0.5, 100}, {1, 0}}, {2.0, 1.0}, strip);
        const float tip = std::ranges::max(strip, {}, &StrokeVertex::y).y;
        QVERIFY(tip >= 100.0f && tip < 100.1f);
    }

    void strokePieces()
    {
        std::vector<StrokeVertex> strip;
        appendSmoothStroke(std::vector<QPointF>{{0, 0}, {1, 0}}, {1.0, 1.0}, strip);
        appendSmoothStroke(std::vector<QPointF>{{5, 5}}, {1.0, 1.0}, strip);
        appendSmoothStroke(std::vector<QPointF>{{5, 5}, {5, 5}}, {1.0, 1.0}, strip);
        QCOMPARE(strip.size(), std::size_t(4));
        appendSmoothStroke(std::vector<QPointF>{{5, 5}, {6, 5}}, {1.0, 1.0}, strip);
        QCOMPARE(strip.size(), std::size_t(10));
        QVERIFY(strip[4] == strip[3] && strip[5] == strip[6]);
        appendSmoothStroke(std::vector<QPointF>{{0, 0}, {1, 0}}, {0.0, 1.0}, strip);
        QCOMPARE(strip.size(), std::size_t(10));
    }
};

template struct TestClass<tst_ResponseLines>;
#include "tst_ResponseLines.moc"
