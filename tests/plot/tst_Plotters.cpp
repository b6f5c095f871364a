#include "plot/GraphPlotter.h"
#include "plot/LinePlotter.h"
#include "plot/RGrid.h"
#include "support/PaintedItem.h"
#include "support/TestProgram.h"

#include <algorithm>
#include <memory>

using namespace tamble::client;

namespace {

using Points = QList<QPointF>;

const QVariantList diagonal{QPointF(0, 1), QPointF(1, 0)};

std::unique_ptr<PaintedItem<GraphPlotter>> paintedGraph()
{
    auto graph = std::make_unique<PaintedItem<GraphPlotter>>();
    graph->setSize({200, 100});
    graph->setValues(diagonal);
    graph->paint();
    return graph;
}

} // namespace

class tst_Plotters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void graphSkipsWhatIsNoPoint()
    {
        const auto graph = paintedGraph();
        graph->setValues({QPointF(0, 1), QVariant(), 3.5, QStringLiteral("0,0"), QPoint(1, 0)});
        graph->paint();
        QCOMPARE(verticesOf(graph->node()), Points({{0, 100}, {200, 0}}));
    }

    void lineVertices()
    {
        PaintedItem<LinePlotter> lines;
        lines.setSize({200, 100});
        lines.setValues({0.0, 1.0});
        lines.paint();
        QCOMPARE(lines.node()->geometry()->drawingMode(), QSGGeometry::DrawLines);
        QCOMPARE(verticesOf(lines.node()), Points({{0, 100}, {200, 100}, {0, 0}, {200, 0}}));

        lines.setOrientation(LinePlotter::Vertical);
        lines.setValues({0.25});
        lines.paint();
        QCOMPARE(verticesOf(lines.node()), Points({{50, 0}, {50, 100}}));
    }

    void wideLinesAreSmooth()
    {
        const auto graph = paintedGraph();
        graph->setValues({QPointF(0, 0.5), QPointF(qQNaN(), 0.5), QPointF(1, 0.5)});
        graph->setLineWidth(4.0);
        graph->setColor(Qt::red);
        graph->paint();
        // Half a pixel of smooth edge on both sides, over which the offset from the middle goes to 2.5.
        const QSGNode *wide = graph->node();
        QCOMPARE(graph->node()->geometry()->drawingMode(), QSGGeometry::DrawTriangleStrip);
        const StrokeVertex expected[] = {{0, 52.5, 2.5}, {0, 47.5, -2.5}, {200, 52.5, 2.5}, {200, 47.5, -2.5}};
        QVERIFY(std::ranges::equal(strokeVertices(graph->node()), expected));
        auto *material = dynamic_cast<SmoothStrokeMaterial *>(graph->node()->material());
        QVERIFY(material);
        QCOMPARE(material->color(), QColor(Qt::red));

        const void *memory = graph->node()->geometry()->vertexData();
        const StrokeVertex mark{-77, -77, 0};
        strokeVertices(graph->node())[0] = mark;
        graph->setColor(Qt::blue);
        graph->paint();
        QCOMPARE(material->color(), QColor(Qt::blue));
        QVERIFY(strokeVertices(graph->node())[0] == mark);
        graph->setLineWidth(2.0);
        graph->setValues(diagonal);
        graph->paint();
        QCOMPARE(graph->node(), wide);
        QCOMPARE(graph->node()->geometry()->vertexData(), memory);
        QVERIFY(strokeVertices(graph->node())[0] != mark);
        graph->setHeight(0.0);
        graph->paint();
        QVERIFY(strokeVertices(graph->node()).empty());

        graph->setHeight(100.0);
        graph->setLineWidth(1.0);
        graph->paint();
        QCOMPARE(verticesOf(graph->node()), Points({{0, 100}, {200, 0}}));
        QCOMPARE(colorOf(graph->node()), QColor(Qt::blue));

        PaintedItem<LinePlotter> lines;
        lines.setSize({200, 100});
        lines.setLineWidth(2.0);
        lines.setValues({0.0, qQNaN(), 1.0});
        lines.paint();
        QCOMPARE(strokeVertices(lines.node()).size(), 10U); // two lines and what joins them
    }

    void unchangedInputRebuildsNothing()
    {
        const auto graph = paintedGraph();
        const QSGNode *node = graph->node();
        markVertices(graph->node());
        QSignalSpy changed(graph.get(), &GraphPlotter::valuesChanged);
        graph->setValues(diagonal);
        graph->setColor(Qt::red);
        graph->setLineWidth(1.0);
        graph->setPosition({5, 5});
        graph->paint();
        QCOMPARE(graph->node(), node);
        QVERIFY(isMarked(graph->node()));
        QVERIFY(changed.isEmpty());

        graph->setSize({100, 100});
        graph->paint();
        QCOMPARE(graph->node(), node);
        QCOMPARE(verticesOf(graph->node()), Points({{0, 100}, {100, 0}}));
    }

    void verticesAreReallocatedOnlyForAnotherCount()
    {
        const auto graph = paintedGraph();
        const void *memory = graph->node()->geometry()->vertexData();
        graph->setValues({QPointF(0, 0), QPointF(1, 1)});
        graph->paint();
        QCOMPARE(graph->node()->geometry()->vertexData(), memory);
        QCOMPARE(verticesOf(graph->node()), Points({{0, 0}, {200, 100}}));
        graph->setValues({});
        graph->paint();
        QCOMPARE(graph->node()->geometry()->vertexCount(), 0);
    }

    void freshNodeIsFilled()
    {
        const auto graph = paintedGraph();
        graph->setColor(Qt::red);
        graph->loseNode();
        graph->paint();
        QCOMPARE(graph->node()->geometry()->drawingMode(), QSGGeometry::DrawLineStrip);
        QCOMPARE(verticesOf(graph->node()), Points({{0, 100}, {200, 0}}));
        QCOMPARE(colorOf(graph->node()), QColor(Qt::red));
    }

    void gridKeepsItsNodes()
    {
        RGridLayout horizontal;
        horizontal.setProperty("positions", QVariant::fromValue(QList<double>{0.25, 0.5}));
        horizontal.setProperty("color", QColor(Qt::gray));
        horizontal.setProperty("majorPositions", QVariant::fromValue(QList<double>{0.75}));
        PaintedItem<RGrid> grid;
        grid.setSize({200, 100});
        grid.setHorizontal(&horizontal);
        grid.paint();
        QCOMPARE(grid.root()->childCount(), 2);
        auto *gray = static_cast<QSGGeometryNode *>(grid.root()->firstChild());
        auto *black = static_cast<QSGGeometryNode *>(grid.root()->lastChild());
        QCOMPARE(colorOf(gray), QColor(Qt::gray));
        QCOMPARE(verticesOf(gray).size(), 12);

        markVertices(gray);
        horizontal.setProperty("majorLineWidth", 3.0);
        horizontal.setProperty("color", QColor(Qt::blue));
        grid.paint();
        QCOMPARE(grid.root()->firstChild(), gray);
        QVERIFY(isMarked(gray));
        QCOMPARE(colorOf(gray), QColor(Qt::blue));
        QCOMPARE(verticesOf(black).first(), QPointF(0, 26.5));

        horizontal.setProperty("color", QColor(Qt::black));
        grid.paint();
        QCOMPARE(grid.root()->childCount(), 1);
        QCOMPARE(verticesOf(gray).size(), 18);
    }

    void gridForgetsADestroyedLayout()
    {
        auto vertical = std::make_unique<RGridLayout>();
        vertical->setProperty("positions", QVariant::fromValue(QList<double>{0.5}));
        PaintedItem<RGrid> grid;
        grid.setSize({200, 100});
        grid.setVertical(vertical.get());
        grid.paint();
        QCOMPARE(grid.root()->childCount(), 1);
        vertical.reset();
        grid.paint();
        QCOMPARE(grid.vertical(), nullptr);
        QCOMPARE(grid.root()->childCount(), 0);
    }

    void gridSharesALayout()
    {
        RGridLayout layout;
        PaintedItem<RGrid> grid;
        grid.setSize({200, 100});
        grid.setHorizontal(&layout);
        grid.setVertical(&layout);
        grid.setHorizontal(nullptr);
        grid.paint();
        layout.setProperty("positions", QVariant::fromValue(QList<double>{0.5}));
        grid.paint();
        QCOMPARE(grid.root()->childCount(), 1);
    }
};

template struct TestClass<tst_Plotters>;
#include "tst_Plotters.moc"
