#include "bodeplot/RLimiterCurve.h"
#include "bodeplot/RSimpleCurve.h"
#include "bodeplot/frame/RBodeplotAxis.h"
#include "bodeplot/frame/RBodeplotGrid.h"
#include "support/Numbers.h"
#include "support/PaintedItem.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <cmath>
#include <memory>

using namespace tamble::client;

namespace {

using Points = QList<QPointF>;

constexpr int linear = RBodeplotAxisScaleEnum::LINEAR;

/// As a page's inline style object: values that tell when they change.
class Style : public QObject
{
    Q_OBJECT
    Q_PROPERTY(QColor lineColorVertical MEMBER m_first NOTIFY changed)
    Q_PROPERTY(QColor lineColorHorizontal MEMBER m_first NOTIFY changed)
    Q_PROPERTY(QColor lineColorXAchsis MEMBER m_second NOTIFY changed)
    Q_PROPERTY(double lineWidthXAchsis MEMBER m_width NOTIFY changed)
    Q_PROPERTY(QColor curveColor MEMBER m_first NOTIFY changed)
    Q_PROPERTY(QColor bypassCurveColor MEMBER m_second NOTIFY changed)
    Q_PROPERTY(double curveLineWidth MEMBER m_width NOTIFY changed)

Q_SIGNALS:
    void changed();

private:
    QColor m_first = Qt::red;
    QColor m_second = Qt::blue;
    double m_width = 2.0;
};

template <typename Item>
struct Painted : PaintedItem<Item>
{
    Painted()
    {
        this->setSize({300.0, 100.0});
        this->setStyle(&style);
    }

    Style style;
};

QColor strokeColor(QSGNode *node)
{
    return static_cast<SmoothStrokeMaterial *>(static_cast<QSGGeometryNode *>(node)->material())->color();
}

QSGGeometryNode *child(const QSGNode *node, int index)
{
    return static_cast<QSGGeometryNode *>(node->childAtIndex(index));
}

Points allVertices(const RBodeplotGrid &, QSGNode *node)
{
    Points points;
    for (int i = 0; i < node->childCount(); ++i)
        points += verticesOf(child(node, i));
    return points;
}

Points allVertices(const QQuickItem &, QSGNode *node)
{
    Points points;
    for (const StrokeVertex &vertex : strokeVertices(node))
        points.append({double(vertex.x), double(vertex.y)});
    return points;
}

enum LineKind { FaintVertical, FaintHorizontal, Vertical, Horizontal, ZeroLine };
constexpr int verticesOfALine = 6;

constexpr char noZero[] =
    "RBodeplotGrid::onHeightChanged() dedicated x axis line enabled but 0 is not between yMin and yMax";

} // namespace

template <typename Item>
void feed(double number)
{
    Painted<Item> item;
    item.setProperty("dedicatedXAxisLine", false);
    item.setProperty("points", QVariantList{QPointF(100, number), QPointF(number, 0), QPointF(200, 1)});
    for (int i = QQuickItem::staticMetaObject.propertyCount(); i < item.metaObject()->propertyCount(); ++i) {
        const QMetaProperty property = item.metaObject()->property(i);
        if (property.metaType().id() != QMetaType::Double || !property.isWritable())
            continue;
        const QVariant before = property.read(&item);
        property.write(&item, number);
        item.paint();
        for (const QPointF &vertex : allVertices(item, item.root()))
            QVERIFY2(std::isfinite(vertex.x()) && std::isfinite(vertex.y()), property.name());
        property.write(&item, before);
    }
}

/// Grid, given curve and limiter curve as items: what they draw, signal and log.
class tst_FrameItems : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void gridKeepsItsNodes()
    {
        Painted<RBodeplotGrid> grid;
        grid.setProperty("xAxisTickValues", QVariantList{100, 1000, 10000});
        grid.paint();
        QCOMPARE(grid.root()->childCount(), 5);
        QCOMPARE(verticesOf(child(grid.root(), Vertical)).size(), 3 * verticesOfALine);
        QCOMPARE(verticesOf(child(grid.root(), FaintVertical)).size(), (26 - 3) * verticesOfALine);
        QCOMPARE(verticesOf(child(grid.root(), Horizontal)).size(), 3 * verticesOfALine); // -10, 0 and 10 dB
        QCOMPARE(verticesOf(child(grid.root(), FaintHorizontal)).size(), 0);
        QCOMPARE(verticesOf(child(grid.root(), ZeroLine)).first(), QPointF(0, 51));

        const QSGNode *root = grid.root();
        markVertices(child(root, Vertical));
        markVertices(child(root, ZeroLine));
        grid.setProperty("yMaximum", 60.0);
        grid.paint();
        QCOMPARE(grid.root(), root);
        QVERIFY(isMarked(child(root, Vertical)));
        QCOMPARE(verticesOf(child(root, Horizontal)).size(), 7 * verticesOfALine);
        QCOMPARE(verticesOf(child(root, ZeroLine)).first(), QPointF(0, 76));

        grid.setProperty("dedicatedXAxisLine", false);
        grid.paint();
        QCOMPARE(verticesOf(child(root, ZeroLine)).size(), 0);
    }

    void gridFollowsItsStyle()
    {
        auto grid = std::make_unique<Painted<RBodeplotGrid>>();
        grid->setProperty("xAxisTickValues", QVariantList{100});
        grid->paint();
        QSGGeometryNode *vertical = child(grid->root(), Vertical);
        QCOMPARE(colorOf(vertical), QColor(Qt::red));
        QCOMPARE(colorOf(child(grid->root(), FaintVertical)).alpha(), 102); // 40 % of 255

        markVertices(vertical);
        grid->style.setProperty("lineColorVertical", QColor(Qt::green));
        grid->paint();
        QCOMPARE(colorOf(vertical), QColor(Qt::green));
        QVERIFY(isMarked(vertical));

        grid->style.setProperty("lineColorXAchsis", QColor());
        grid->paint();
        QCOMPARE(verticesOf(child(grid->root(), ZeroLine)).size(), 0);
        grid->setStyle(nullptr);
        grid->paint();
        QVERIFY(allVertices(*grid, grid->root()).isEmpty());
    }

    void gridWarnsOncePerChange()
    {
        Painted<RBodeplotGrid> grid;
        grid.setProperty("yMaximum", 60.0);
        QTest::ignoreMessage(QtWarningMsg, noZero);
        grid.setProperty("yMinimum", 5.0);
        QTest::ignoreMessage(QtWarningMsg, noZero);
        grid.setHeight(200.0);
        grid.setWidth(500.0);
        grid.setProperty("xMinimum", 30.0);
        grid.paint();
        grid.paint();
        QCOMPARE(verticesOf(child(grid.root(), ZeroLine)).size(), 0);

        grid.setProperty("dedicatedXAxisLine", false);
        grid.setHeight(300.0);
    }

    void gridWithFarTooManyLines()
    {
        Painted<RBodeplotGrid> grid;
        grid.setProperty("dedicatedXAxisLine", false);
        grid.setProperty("yIncrement", 1e-12);
        QTest::ignoreMessage(QtWarningMsg, "RBodeplotGrid::computeLines() more than 1000 lines");
        grid.paint();
        QCOMPARE(verticesOf(child(grid.root(), Horizontal)).size(), 0);
        grid.setHeight(200.0);
        grid.paint();
    }

    void curveFromEitherForm()
    {
        RSimpleCurve curve;
        QSignalSpy changed(&curve, &RSimpleCurve::visibleCountChanged);
        curve.setProperty("xValues", QVariant::fromValue(QList<double>{100, 1000, 10000}));
        QCOMPARE(curve.visibleCount(), 0);
        curve.setProperty("yValues", QVariant::fromValue(QList<double>{0, 30}));
        QCOMPARE(curve.visibleCount(), 1); // 30 dB is above the frame, and the third has no y
        QCOMPARE(changed.count(), 1);

        curve.setProperty("points", QVariantList{QPointF(100, 0), QVariant(), QPointF(200, 0), QPointF(300, 0)});
        QCOMPARE(curve.visibleCount(), 3);
        curve.setProperty("trim", 20.5);
        QCOMPARE(curve.visibleCount(), 0);
        curve.setProperty("yMaximum", 21.0);
        QCOMPARE(curve.visibleCount(), 3);
        curve.setProperty("points", QVariantList());
        curve.setProperty("trim", 0.0);
        QCOMPARE(curve.visibleCount(), 1);
    }

    void curveKeepsItsNodes()
    {
        Painted<RSimpleCurve> curve;
        curve.setProperty("points", QVariantList{QPointF(20, 0), QPointF(200, 0), QStringLiteral("gap"),
                                                 QPointF(2000, 10), QPointF(20000, 10)});
        curve.paint();
        QSGNode *node = curve.root();
        // A line of 2 pixels with half a pixel of smooth edge on either side; two vertices join the second piece.
        QCOMPARE(strokeVertices(node).size(), std::size_t(4 + 2 + 4));
        QCOMPARE(strokeVertices(node).front(), StrokeVertex({0.0f, 51.5f, 1.5f}));
        QCOMPARE(strokeVertices(node).back(), StrokeVertex({300.0f, 23.5f, -1.5f}));

        const StrokeVertex mark{-77.0f, -77.0f, 0.0f};
        strokeVertices(node).front() = mark;
        curve.style.setProperty("curveColor", QColor(Qt::green));
        curve.paint();
        QCOMPARE(strokeColor(node), QColor(Qt::green));
        QCOMPARE(strokeVertices(node).front(), mark);

        curve.setProperty("xMaximum", 200.0);
        curve.paint();
        QCOMPARE(curve.root(), node);
        QCOMPARE(strokeVertices(node).size(), std::size_t(4));
        QCOMPARE(strokeVertices(node).back(), StrokeVertex({300.0f, 48.5f, -1.5f}));

        curve.style.setProperty("curveColor", QColor(Qt::transparent));
        curve.paint();
        QVERIFY(strokeVertices(node).empty());
    }

    void limiterSignals()
    {
        RLimiterCurve curve;
        QCOMPARE(curve.points(), QVariantList({QPointF(0, 0.5), QPointF(1, 0.5)}));
        QSignalSpy points(&curve, &RLimiterCurve::pointsChanged);
        QSignalSpy handle(&curve, &RLimiterCurve::handlePointChanged);
        curve.setProperty("ratio", 4.0); // of no meaning over frequencies
        QCOMPARE(points.count(), 0);
        curve.setProperty("threshold", 10.0);
        QCOMPARE(points.count(), 1);
        QCOMPARE(handle.count(), 1);
        QCOMPARE(curve.handlePoint(), QPointF(0.5, 0.25));
        QCOMPARE(curve.thresholdNear({0.5, 0.26}), 9.6);
        QCOMPARE(curve.thresholdNear({0.5, 0.26}, 0.5), 9.5);
        QCOMPARE(curve.thresholdNear({0.5, 0.0}, 3.0), 20.0); // 21 dB would be outside
        curve.setProperty("bypass", true);
        QVERIFY(curve.points().isEmpty());
        QCOMPARE(handle.count(), 1);
    }

    void limiterDrawsByState()
    {
        Painted<RLimiterCurve> curve;
        curve.setProperty("xAxisScale", linear);
        curve.setProperty("xMinimum", -20.0);
        curve.setProperty("xMaximum", 20.0);
        curve.setProperty("threshold", 10.0);
        curve.paint();
        QSGNode *node = curve.root();
        QCOMPARE(strokeColor(node), QColor(Qt::red));
        QVERIFY(strokeVertices(node).size() > 4);

        const StrokeVertex mark{-77.0f, -77.0f, 0.0f};
        strokeVertices(node).front() = mark;
        curve.style.setProperty("curveColor", QColor(Qt::green));
        curve.paint();
        QCOMPARE(strokeColor(node), QColor(Qt::green));
        QCOMPARE(strokeVertices(node).front(), mark);

        // The bypassed line has no corner, and no width of its own here: 1 pixel and its smooth edge.
        curve.setProperty("bypass", true);
        curve.paint();
        QCOMPARE(curve.root(), node);
        QCOMPARE(strokeColor(node), QColor(Qt::blue));
        QCOMPARE(strokeVertices(node).size(), std::size_t(4));
        QCOMPARE(strokeVertices(node).front().offset, 1.0f);
    }

    void badNumbersReachNoVertex_data()
    {
        const auto row = rowsOf([](double number) {
            // As a bound of either axis, and as an increment, these ask for more lines than there is room for.
            for (int i = 0; i < 2 && (number == 5e-324 || number == 1.7e308); ++i)
                QTest::ignoreMessage(QtWarningMsg, "RBodeplotGrid::computeLines() more than 1000 lines");
            feed<RBodeplotGrid>(number);
            feed<RSimpleCurve>(number);
            feed<RLimiterCurve>(number);
        });
        row("NaN", notANumber);
        row("infinity", infinity);
        row("minus infinity", -infinity);
        row("huge", 1.7e308);
        row("denormal", 5e-324);
        row("zero", 0.0);
    }
    void badNumbersReachNoVertex() { checkRow(); }
};

template struct TestClass<tst_FrameItems>;
#include "tst_FrameItems.moc"
