#include "plot/GridLines.h"
#include "scenegraph/StrokeGeometry.h"
#include "support/Numbers.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <limits>

using namespace tamble::client;

namespace {

using Points = QList<QPointF>;

} // namespace

class tst_StrokeGeometry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void thinLines()
    {
        const Points points{{0, 0}, {5, 5}, {5, 5}, {9, 0}};
        QCOMPARE(polylineStroke(points, 1.0), StrokeGeometry({StrokeMode::LineStrip, points, 1.0}));
        const Points gappy{{0, 0}, {notANumber, 5}, {1e300, 5}, {9, 0}};
        QCOMPARE(polylineStroke(gappy, 0.5), StrokeGeometry({StrokeMode::LineStrip, {{0, 0}, {9, 0}}, 0.5}));
    }

    void thinSegments()
    {
        const StrokeGeometry stroke = segmentsStroke({{0, 5, 9, 5}, {0, notANumber, 9, notANumber}, {0, 7, 9, 7}}, 1.0);
        QCOMPARE(stroke.mode, StrokeMode::Lines);
        QCOMPARE(stroke.vertices, Points({{0, 5}, {9, 5}, {0, 7}, {9, 7}}));
    }

    void nothingToDraw_data()
    {
        const auto row = rowsOf([](const Points &points, double width) {
            QVERIFY(polylineStroke(points, width).vertices.isEmpty());
            if (points.size() == 2)
                QVERIFY(segmentsStroke({QLineF(points[0], points[1])}, width).vertices.isEmpty());
        });
        const Points line{{0, 0}, {9, 9}};
        row("no points", {}, 1.0);
        row("one point", {{3, 3}}, 1.0);
        row("width 0", line, 0.0);
        row("negative width", line, -2.0);
        row("NaN width", line, notANumber);
        row("infinite width", line, std::numeric_limits<double>::infinity());
    }
    void nothingToDraw() { checkRow(); }

    void gridLines()
    {
        LineFamily horizontal;
        horizontal.positions = {0.25, 0.5, 1.5, notANumber};
        horizontal.majorPositions = {0.5};
        horizontal.color = Qt::gray;
        horizontal.majorColor = Qt::white;
        horizontal.majorLineWidth = 2.0;
        LineFamily vertical;
        vertical.positions = {0.5};
        vertical.color = Qt::gray;

        const QList<ColoredLines> lines = tamble::client::gridLines({horizontal, vertical, false}, {100, 40});
        QCOMPARE(lines.size(), 2);
        QCOMPARE(lines[0].color, QColor(Qt::gray));
        // The vertical line in the middle, then the horizontal one a quarter from the bottom.
        QCOMPARE(lines[0].stroke.vertices, Points({{49.5, 0},
                                                   {50.5, 0},
                                                   {49.5, 40},
                                                   {49.5, 40},
                                                   {50.5, 0},
                                                   {50.5, 40},
                                                   {0, 30.5},
                                                   {0, 29.5},
                                                   {100, 30.5},
                                                   {100, 30.5},
                                                   {0, 29.5},
                                                   {100, 29.5}}));
        QCOMPARE(lines[1].color, QColor(Qt::white));
        QCOMPARE(lines[1].stroke.vertices, Points({{0, 21}, {0, 19}, {100, 21}, {100, 21}, {0, 19}, {100, 19}}));

        horizontal.visible = false;
        QCOMPARE(tamble::client::gridLines({horizontal, vertical, false}, {100, 40}).size(), 1);
        QVERIFY(tamble::client::gridLines({horizontal, vertical, true}, {100, 0}).isEmpty());
        QVERIFY(tamble::client::gridLines({{}, {}, true}, {100, 40}).isEmpty());
    }

    void gridFrame()
    {
        LineFamily family;
        family.majorLineWidth = 2.0;
        const QList<ColoredLines> lines = tamble::client::gridLines({{}, family, true}, {100, 40});
        QCOMPARE(lines.size(), 1);
        const Points &vertices = lines[0].stroke.vertices;
        QCOMPARE(vertices.size(), 24);
        for (const QPointF &vertex : vertices)
            QVERIFY(QRectF(0, 0, 100, 40).contains(vertex));
    }

    void gridWidths_data()
    {
        const Rows<double, double, double> row;
        row("thinner than a pixel", 0.4, 1.0, 1.0);
        row("thin on a fine screen", 0.4, 2.0, 0.5);
        row("wide", 3.0, 2.0, 3.0);
        row("none", 0.0, 1.0, 0.0);
        row("negative", -1.0, 1.0, 0.0);
    }

    void gridWidths()
    {
        const auto &[width, pixelRatio, drawn] = Rows<double, double, double>::current();
        LineFamily family;
        family.positions = {0.25};
        family.lineWidth = width;
        family.majorPositions = {0.5};
        family.majorLineWidth = width;
        const QList<ColoredLines> lines = tamble::client::gridLines({{}, family, true, pixelRatio}, {100, 40});
        QCOMPARE(lines.isEmpty(), drawn == 0.0);
        if (lines.isEmpty())
            return;
        // Two lines, then the frame's upper edge.
        const Points &vertices = lines[0].stroke.vertices;
        QCOMPARE(vertices[1].x() - vertices[0].x(), drawn);
        QCOMPARE(vertices[7].x() - vertices[6].x(), drawn);
        QCOMPARE(vertices[12], QPointF(0, drawn));
    }
};

template struct TestClass<tst_StrokeGeometry>;
#include "tst_StrokeGeometry.moc"
