#include "plot/AreaStrip.h"
#include "scenegraph/PictureCanvas.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <algorithm>
#include <cmath>

using namespace tamble::client;

namespace {

using Points = std::vector<QPointF>;

constexpr double axis = 50.0;

std::vector<AreaVertex> stripOf(const Points &curve, const AreaSaturation &saturation = {})
{
    std::vector<AreaVertex> strip;
    appendAreaStrip(curve, axis, saturation, strip);
    return strip;
}

double heightAt(const Points &curve, double x)
{
    const auto right = std::ranges::lower_bound(curve, x, {}, &QPointF::x);
    const QPointF left = *(right - 1);
    return axis - left.y() - (right->y() - left.y()) * (x - left.x()) / (right->x() - left.x());
}

} // namespace

class tst_AreaStrip : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void fadesAlongEachColumn_data()
    {
        const Rows<Points> row;
        row("level", {{0, 10}, {40, 10}});
        row("up from the axis", {{0, 50}, {40, 2}});
        row("down to the axis, below it", {{0, 98}, {40, 50}});
        row("steep", {{0, 48}, {18, 48}, {22, 3}, {40, 3}});
        row("a spike within a pixel", {{0, 45}, {20, 45}, {20.2, 1}, {20.4, 45}, {40, 45}});
        row("grazing the axis", {{0, 20}, {20, 50}, {40, 20}});
    }

    void fadesAlongEachColumn()
    {
        const auto &[curve] = Rows<Points>::current();
        constexpr int ratio = 2;
        PictureCanvas canvas({0, 0, 40, 100}, ratio);
        canvas.setColor(Qt::black, CanvasStrength::Product);
        canvas.fillStrip<AreaVertex>(stripOf(curve, {.nearCurve = 0.8, .nearAxis = 0.1}), [](const AreaVertex &vertex) {
            return CanvasVertex{vertex.x, vertex.y, vertex.weightedHeight, vertex.inverseHeight};
        });
        for (int column = 0; column < canvas.image().width(); ++column) {
            const double height = heightAt(curve, (column + 0.5) / ratio);
            if (std::abs(height) < 2.0)
                continue;
            for (int row = 0; row < canvas.image().height(); ++row) {
                const double share = (axis - (row + 0.5) / ratio) / height;
                const double expected = share > 0.0 && share < 1.0 ? 0.1 + 0.7 * share : 0.0;
                const double drawn = canvas.image().pixelColor(column, row).alphaF();
                QVERIFY2(std::abs(drawn - expected) < 0.035,
                         qPrintable(QStringLiteral("%1 at %2, %3").arg(drawn - expected).arg(column).arg(row)));
            }
        }
    }

    void addsVerticesOnlyWhereItIsSteep()
    {
        QCOMPARE(stripOf({{0, 10}, {10, 11}, {20, 9}, {30, 10}}).size(), 8U);
        QCOMPARE(stripOf({{0, 50}, {10, 49.8}, {20, 50}, {30, 50.2}}).size(), 8U);
        QVERIFY(stripOf({{0, 50}, {10, -1e5}}).size() < 200U);
    }

    void pieces()
    {
        std::vector<AreaVertex> strip;
        appendAreaStrip(Points{{0, 40}}, axis, {}, strip);
        QVERIFY(strip.empty());
        for (const double x : {0.0, 20.0})
            appendAreaStrip(Points{{x, 40}, {x + 10, 40}}, axis, {}, strip);
        QCOMPARE(strip.size(), 10U);
        QVERIFY(strip[4] == strip[3] && strip[5] == strip[6]);

        // Saturations outside of 0 to 1 and NaN are held within.
        const std::vector<AreaVertex> held = stripOf({{0, 40}, {10, 40}}, {.nearCurve = 2.0, .nearAxis = std::nan("")});
        QCOMPARE(held[0].weightedHeight * held[0].inverseHeight, 1.0f);
        QCOMPARE(held[1].weightedHeight * held[1].inverseHeight, 0.0f);
    }
};

template struct TestClass<tst_AreaStrip>;
#include "tst_AreaStrip.moc"
