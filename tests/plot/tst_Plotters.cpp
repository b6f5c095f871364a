#include "plot/GraphPlotter.h"
#include "plot/LinePlotter.h"
#include "plot/RGrid.h"
#include "plot/SmoothStrokeNode.h"
#include "support/TestProgram.h"

#include <QtQuick/QSGFlatColorMaterial>
#include <QtQuick/QSGGeometryNode>
#include <QtTest/QtTest>

#include <algorithm>
#include <memory>
#include <span>

using namespace tamble::client;

namespace {

using Points = QList<QPointF>;

/// An item whose paint node a test updates as the render loop would.
template <typename Item>
class Painted : public Item
{
public:
    void paint() { m_node.reset(this->updatePaintNode(m_node.release(), nullptr)); }
    /// The scene graph of the window is gone; the next frame starts anew.
    void loseNode() { m_node.reset(); }
    QSGNode *root() const { return m_node.get(); }
    QSGGeometryNode *node() const { return static_cast<QSGGeometryNode *>(m_node.get()); }

private:
    std::unique_ptr<QSGNode> m_node;
};

Points vertices(const QSGGeometryNode *node)
{
    Points points;
    const QSGGeometry *geometry = node->geometry();
    for (int i = 0; i < geometry->vertexCount(); ++i) {
        const QSGGeometry::Point2D &point = geometry->vertexDataAsPoint2D()[i];
        points.append({double(point.x), double(point.y)});
    }
    return points;
}

/// The vertices of a wide line without the room behind them, which repeats the last one.
std::span<StrokeVertex> wideVertices(QSGGeometryNode *node)
{
    const auto *stroke = static_cast<SmoothStrokeNode *>(node);
    return {static_cast<StrokeVertex *>(node->geometry()->vertexData()), std::size_t(stroke->usedVertexCount())};
}

/// Writes a mark into a node's vertices that the next rebuild would overwrite.
void markVertices(QSGGeometryNode *node)
{
    node->geometry()->vertexDataAsPoint2D()[0].set(-77.0f, -77.0f);
}

bool isMarked(const QSGGeometryNode *node)
{
    return vertices(node).first() == QPointF(-77, -77);
}

QColor colorOf(const QSGGeometryNode *node)
{
    return static_cast<QSGFlatColorMaterial *>(node->material())->color();
}

const QVariantList diagonal{QPointF(0, 1), QPointF(1, 0)};

std::unique_ptr<Painted<GraphPlotter>> paintedGraph()
{
    auto graph = std::make_unique<Painted<GraphPlotter>>();
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
    void defaults()
    {
        const GraphPlotter graph;
        QVERIFY(graph.flags().testFlag(QQuickItem::ItemHasContents));
        QCOMPARE(graph.lineWidth(), 1.0);
        const LinePlotter lines;
        QCOMPARE(lines.orientation(), LinePlotter::Horizontal);
        QCOMPARE(QMetaEnum::fromType<LinePlotter::ORIENTATION>().keyToValue("Vertical"), int(LinePlotter::Vertical));
    }

    void graphVertices()
    {
        const auto graph = paintedGraph();
        QCOMPARE(graph->node()->geometry()->drawingMode(), QSGGeometry::DrawLineStrip);
        QCOMPARE(graph->node()->geometry()->lineWidth(), 1.0f);
        QCOMPARE(vertices(graph->node()), Points({{0, 100}, {200, 0}}));
    }

    void graphSkipsWhatIsNoPoint()
    {
        const auto graph = paintedGraph();
        graph->setValues({QPointF(0, 1), QVariant(), 3.5, QStringLiteral("0,0"), QPoint(1, 0)});
        graph->paint();
        QCOMPARE(vertices(graph->node()), Points({{0, 100}, {200, 0}}));
    }

    void lineVertices()
    {
        Painted<LinePlotter> lines;
        lines.setSize({200, 100});
        lines.setValues({0.0, 1.0});
        lines.paint();
        QCOMPARE(lines.node()->geometry()->drawingMode(), QSGGeometry::DrawLines);
        QCOMPARE(vertices(lines.node()), Points({{0, 100}, {200, 100}, {0, 0}, {200, 0}}));

        lines.setOrientation(LinePlotter::Vertical);
        lines.setValues({0.25});
        lines.paint();
        QCOMPARE(vertices(lines.node()), Points({{50, 0}, {50, 100}}));
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
        QVERIFY(std::ranges::equal(wideVertices(graph->node()), expected));
        auto *material = dynamic_cast<SmoothStrokeMaterial *>(graph->node()->material());
        QVERIFY(material);
        QCOMPARE(material->color(), QColor(Qt::red));

        const void *memory = graph->node()->geometry()->vertexData();
        const StrokeVertex mark{-77, -77, 0};
        wideVertices(graph->node())[0] = mark;
        graph->setColor(Qt::blue);
        graph->paint();
        QCOMPARE(material->color(), QColor(Qt::blue));
        QVERIFY(wideVertices(graph->node())[0] == mark);
        graph->setLineWidth(2.0);
        graph->setValues(diagonal);
        graph->paint();
        QCOMPARE(graph->node(), wide);
        QCOMPARE(graph->node()->geometry()->vertexData(), memory);
        QVERIFY(wideVertices(graph->node())[0] != mark);
        graph->setHeight(0.0);
        graph->paint();
        QVERIFY(wideVertices(graph->node()).empty());

        graph->setHeight(100.0);
        graph->setLineWidth(1.0);
        graph->paint();
        QCOMPARE(vertices(graph->node()), Points({{0, 100}, {200, 0}}));
        QCOMPARE(colorOf(graph->node()), QColor(Qt::blue));

        Painted<LinePlotter> lines;
        lines.setSize({200, 100});
        lines.setLineWidth(2.0);
        lines.setValues({0.0, qQNaN(), 1.0});
        lines.paint();
        QCOMPARE(wideVertices(lines.node()).size(), 10U); // two lines and what joins them
    }

    void unchangedInputRebuildsNothing()
    {
        const auto graph = paintedGraph();
        const QSGNode *node = graph->node();
        markVertices(graph->node());
        QSignalSpy changed(graph.get(), &GraphPlotter::valuesChanged);
        graph->setValues(diagonal);
        graph->setLineWidth(1.0);
        graph->setPosition({5, 5});
        graph->paint();
        QCOMPARE(graph->node(), node);
        QVERIFY(isMarked(graph->node()));
        QVERIFY(changed.isEmpty());

        graph->setSize({100, 100});
        graph->paint();
        QCOMPARE(graph->node(), node);
        QCOMPARE(vertices(graph->node()), Points({{0, 100}, {100, 0}}));
    }

    void colorTouchesTheMaterialOnly()
    {
        const auto graph = paintedGraph();
        markVertices(graph->node());
        graph->setColor(Qt::red);
        graph->paint();
        QCOMPARE(colorOf(graph->node()), QColor(Qt::red));
        QVERIFY(isMarked(graph->node()));
    }

    void verticesAreReallocatedOnlyForAnotherCount()
    {
        const auto graph = paintedGraph();
        const void *memory = graph->node()->geometry()->vertexData();
        graph->setValues({QPointF(0, 0), QPointF(1, 1)});
        graph->paint();
        QCOMPARE(graph->node()->geometry()->vertexData(), memory);
        QCOMPARE(vertices(graph->node()), Points({{0, 0}, {200, 100}}));
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
        QCOMPARE(vertices(graph->node()), Points({{0, 100}, {200, 0}}));
        QCOMPARE(colorOf(graph->node()), QColor(Qt::red));
    }

    void emptySizeDrawsNothing()
    {
        const auto graph = paintedGraph();
        graph->setHeight(0.0);
        graph->paint();
        QCOMPARE(graph->node()->geometry()->vertexCount(), 0);
    }

    void gridKeepsItsNodes()
    {
        RGridLayout horizontal;
        horizontal.setProperty("positions", QVariant::fromValue(QList<double>{0.25, 0.5}));
        horizontal.setProperty("color", QColor(Qt::gray));
        horizontal.setProperty("majorPositions", QVariant::fromValue(QList<double>{0.75}));
        Painted<RGrid> grid;
        grid.setSize({200, 100});
        grid.setHorizontal(&horizontal);
        grid.paint();
        QCOMPARE(grid.root()->childCount(), 2);
        auto *gray = static_cast<QSGGeometryNode *>(grid.root()->firstChild());
        auto *black = static_cast<QSGGeometryNode *>(grid.root()->lastChild());
        QCOMPARE(colorOf(gray), QColor(Qt::gray));
        QCOMPARE(vertices(gray).size(), 12);

        markVertices(gray);
        horizontal.setProperty("majorLineWidth", 3.0);
        horizontal.setProperty("color", QColor(Qt::blue));
        grid.paint();
        QCOMPARE(grid.root()->firstChild(), gray);
        QVERIFY(isMarked(gray));
        QCOMPARE(colorOf(gray), QColor(Qt::blue));
        QCOMPARE(vertices(black).first(), QPointF(0, 26.5));

        horizontal.setProperty("color", QColor(Qt::black));
        grid.paint();
        QCOMPARE(grid.root()->childCount(), 1);
        QCOMPARE(vertices(gray).size(), 18);
    }

    void gridForgetsADestroyedLayout()
    {
        auto vertical = std::make_unique<RGridLayout>();
        vertical->setProperty("positions", QVariant::fromValue(QList<double>{0.5}));
        Painted<RGrid> grid;
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
        Painted<RGrid> grid;
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
