#include "tst_StrokeGeometry.h"

#include "plot/GridLines.h"
#include "plot/StrokeGeometry.h"

#include <QtTest/QTest>

#include <limits>

using namespace tamble::client;

namespace {

using Points = QList<QPointF>;
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

} // namespace

void tst_StrokeGeometry::thinLines()
{
    const Points points{{0, 0}, {5, 5}, {5, 5}, {9, 0}};
    QCOMPARE(polylineStroke(points, 1.0), StrokeGeometry({StrokeMode::LineStrip, points, 1.0}));
    const Points gappy{{0, 0}, {notANumber, 5}, {1e300, 5}, {9, 0}};
    QCOMPARE(polylineStroke(gappy, 0.5), StrokeGeometry({StrokeMode::LineStrip, {{0, 0}, {9, 0}}, 0.5}));
}

void tst_StrokeGeometry::thinSegments()
{
    const StrokeGeometry stroke = segmentsStroke({{0, 5, 9, 5}, {0, notANumber, 9, notANumber}, {0, 7, 9, 7}}, 1.0);
    QCOMPARE(stroke.mode, StrokeMode::Lines);
    QCOMPARE(stroke.vertices, Points({{0, 5}, {9, 5}, {0, 7}, {9, 7}}));
}

void tst_StrokeGeometry::straightStrip()
{
    const StrokeGeometry stroke = polylineStroke({{0, 10}, {4, 10}, {4, 10}, {8, 10}}, 4.0);
    QCOMPARE(stroke.mode, StrokeMode::TriangleStrip);
    QCOMPARE(stroke.vertices, Points({{0, 12}, {0, 8}, {4, 12}, {4, 8}, {8, 12}, {8, 8}}));
}

void tst_StrokeGeometry::mitredCorner()
{
    // Right, then down: the outer corner lies up and right of the bend, the inner one down and left.
    const StrokeGeometry stroke = polylineStroke({{0, 0}, {10, 0}, {10, 10}}, 2.0);
    QCOMPARE(stroke.vertices, Points({{0, 1}, {0, -1}, {9, 1}, {11, -1}, {9, 10}, {11, 10}}));
}

void tst_StrokeGeometry::sharpCornerIsBevelled()
{
    // Straight back on itself: a mitre would have no end.
    const StrokeGeometry stroke = polylineStroke({{0, 0}, {10, 0}, {5, 0}}, 2.0);
    QCOMPARE(stroke.vertices, Points({{0, 1}, {0, -1}, {10, 1}, {10, -1}, {10, -1}, {10, 1}, {5, -1}, {5, 1}}));
}

void tst_StrokeGeometry::nothingToDraw_data()
{
    QTest::addColumn<Points>("points");
    QTest::addColumn<double>("width");
    const Points line{{0, 0}, {9, 9}};
    QTest::newRow("no points") << Points() << 1.0;
    QTest::newRow("one point") << Points{{3, 3}} << 1.0;
    QTest::newRow("one place, wide") << Points{{3, 3}, {3, 3}, {3, 3}} << 3.0;
    QTest::newRow("width 0") << line << 0.0;
    QTest::newRow("negative width") << line << -2.0;
    QTest::newRow("NaN width") << line << notANumber;
    QTest::newRow("infinite width") << line << std::numeric_limits<double>::infinity();
}

void tst_StrokeGeometry::nothingToDraw()
{
    QFETCH(Points, points);
    QFETCH(double, width);
    QVERIFY(polylineStroke(points, width).vertices.isEmpty());
    if (points.size() == 2)
        QVERIFY(segmentsStroke({QLineF(points[0], points[1])}, width).vertices.isEmpty());
}

void tst_StrokeGeometry::wideSegments()
{
    const StrokeGeometry stroke = segmentsStroke({{0, 5, 9, 5}, {4, 4, 4, 4}}, 2.0);
    QCOMPARE(stroke.mode, StrokeMode::Triangles);
    QCOMPARE(stroke.vertices, Points({{0, 6}, {0, 4}, {9, 6}, {9, 6}, {0, 4}, {9, 4}}));
}

void tst_StrokeGeometry::gridLines()
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

void tst_StrokeGeometry::gridFrame()
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
