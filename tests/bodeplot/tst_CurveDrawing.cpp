#include "bodeplot/CurvePage.h"
#include "support/AllocationCount.h"
#include "support/Rows.h"
#include "support/TestProgram.h"

#include <QtQuick/QQuickWindow>

#include <algorithm>
#include <memory>
#include <utility>

using namespace tamble::client;

namespace {

const QByteArray colours = "style: QtObject { property color aggregatedCurveColor: '#ff0000'\n"
                           "property color aggregatedAreaColor: '#0000ff'; property real aggregatedCurveLineWidth: 4\n"
                           "property color individualCurveColor: '#00ff00'; property real individualCurveLineWidth: 3\n"
                           "property color selectedCurveColor: 'transparent'\n"
                           "property real areaSaturationNearAggregatedCurve: 1\n"
                           "property real areaSaturationNearxAchsis: 1 }\n";

/// Pixel y of a line at a place between two of its points.
double lineAt(const PolylineRuns &line, double x)
{
    const auto right = std::ranges::lower_bound(line.points, x, {}, &QPointF::x);
    const QPointF left = *(right - 1);
    return left.y() + (right->y() - left.y()) * (x - left.x()) / (right->x() - left.x());
}

bool drawsInSoftware(const QQuickWindow &window)
{
    return window.rendererInterface()->graphicsApi() == QSGRendererInterface::Software;
}

} // namespace

/// What a curve draws and what a frame of it costs.
class tst_CurveDrawing : public QuietTest
{
    Q_OBJECT

private Q_SLOTS:
    void draggingAllocatesNothing()
    {
        if (!countsAllocations())
            QSKIP("Allocations are the sanitizer's.");
        const Page page(colours + "calculationItems: [ RBodeplotEqFilter { freq: 200; gain: 10; quality: 2 },\n"
                                  "RBodeplotXOverFilter { type: 12; freq: 2000 },\n"
                                  "RBodeplotFIRFilter { type: 1; freqHP: 200 },\n"
                                  "RBodeplotEqFilter { freq: 1000; gain: -6 } ]");
        QQuickWindow window;
        if (drawsInSoftware(window))
            QSKIP("Every frame is a new picture.");
        qobject_cast<QQuickItem *>(page.root.get())->setParentItem(window.contentItem());
        const std::unique_ptr<QSGNode> node(page.curve->draw());
        const auto drag = [&](int step) {
            page.curve->onUserMoveFilterPoint(0, QPointF(0.2 + 0.006 * step, 0.2 + 0.005 * step));
            page.curve->draw();
        };
        page.curve->holdFilterPoint(0);
        for (int step = 0; step < 100; ++step)
            drag(step);
        QVERIFY2(takeAllocationCount() > 0, "warming up does");
        for (int step = 99; step >= 0; --step)
            drag(step);
        QCOMPARE(takeAllocationCount(), std::size_t(0));
    }

    void nothingIsRewrittenWithoutChange()
    {
        if (!QGuiApplication::platformName().contains(QLatin1String("xcb")))
            QSKIP("Needs a display.");
        const Page page(colours +
                        "calculationItems: [ RBodeplotEqFilter { freq: 200; gain: 10 }, RBodeplotEqFilter {} ]");
        QQuickWindow window;
        if (drawsInSoftware(window))
            QSKIP("Every frame is a new picture.");
        window.resize(300, 400);
        static_cast<QQuickItem *>(page.root.get())->setParentItem(window.contentItem());
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        auto rewritten = [&, count = 0]() mutable {
            window.grabWindow();
            return page.curve->rewriteCount() - std::exchange(count, page.curve->rewriteCount());
        };
        rewritten();
        page.curve->update();
        QCOMPARE(rewritten(), 0);
        page.curve->style()->setProperty("aggregatedCurveColor", QColor(Qt::yellow));
        QCOMPARE(rewritten(), 0);
        page.curve->onUserMoveFilterPoint(0, {0.4, 0.4});
        QCOMPARE(rewritten(), 3); // its line, the sum and the area
        page.curve->onUserMoveFilterPoint(0, {0.45, 0.4});
        QCOMPARE(rewritten(), 3);
        const int updates = page.curve->updateCount();
        page.filter(0)->setProperty("gain", page.filter(0)->property("gain"));
        page.curve->refreshColors();
        QCoreApplication::processEvents();
        QCOMPARE(page.curve->updateCount(), updates);
    }

    void hiddenLinesComeBack()
    {
        if (!QGuiApplication::platformName().contains(QLatin1String("xcb")))
            QSKIP("Needs a display.");
        // Their sum is flat.
        const Page page(colours + "calculationItems: [ RBodeplotEqFilter { freq: 100; gain: 12; quality: 2 },\n"
                                  "RBodeplotEqFilter { freq: 100; gain: -12; quality: 2 } ]");
        QQuickWindow window;
        window.resize(300, 400);
        static_cast<QQuickItem *>(page.root.get())->setParentItem(window.contentItem());
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const auto peakIsDrawn = [&] {
            return window.grabWindow().pixelColor(QPoint(70, 80) * window.effectiveDevicePixelRatio()).red() < 100;
        };
        QVERIFY(peakIsDrawn());
        for (int i = 0; i < 2; ++i) {
            page.curve->setProperty("hideIndividualCurves", true);
            QVERIFY(!peakIsDrawn());
            page.curve->setProperty("hideIndividualCurves", false);
            QVERIFY(peakIsDrawn());
        }
    }

    void drawnPixels_data()
    {
        const Rows<QByteArray, QPoint, QColor> row;
        const QByteArray filter = "calculationItems: RBodeplotEqFilter { freq: 632.4555; gain: 10; quality: 0.5; ";
        row("curve", filter + "}", QPoint(150, 100), QColor(Qt::red));
        row("area between curve and axis", filter + "}", QPoint(150, 150), QColor(Qt::blue));
        row("nothing above", filter + "}", QPoint(150, 90), QColor(Qt::white));
        row("nothing below the axis", filter + "}", QPoint(150, 210), QColor(Qt::white));
        row("trimmed", filter + "} trim: 5", QPoint(150, 50), QColor(Qt::red));
        row("cut off above, not drawn along the edge", filter + "} yMaximum: 5; yMinimum: -5", QPoint(150, 0),
            QColor(Qt::blue));
        row("own curve without the sum's trim", filter + "} trim: -9", QPoint(150, 100), QColor(Qt::green));
        row("hidden own curve", filter + "} trim: -9; hideIndividualCurves: true", QPoint(150, 100), QColor(Qt::white));
        row("bypassed is flat", filter + "bypass: true } trim: 5", QPoint(150, 200), QColor(Qt::green));
        row("phase", filter + "} spectrum: 1; yMinimum: -180; yMaximum: 180", QPoint(150, 200), QColor(Qt::red));
    }

    void drawnPixels()
    {
        const auto &[body, place, color] = Rows<QByteArray, QPoint, QColor>::current();
        if (!QGuiApplication::platformName().contains(QLatin1String("xcb")))
            QSKIP("Needs a display.");

        const Page page(colours + body);
        QQuickWindow window;
        window.resize(300, 400);
        static_cast<QQuickItem *>(page.root.get())->setParentItem(window.contentItem());
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QImage image = window.grabWindow();
        const double ratio = window.effectiveDevicePixelRatio();
        const QColor drawn = image.pixelColor(place * ratio);
        const int distance = std::abs(drawn.red() - color.red()) + std::abs(drawn.green() - color.green()) +
                             std::abs(drawn.blue() - color.blue());
        QVERIFY2(distance < 60, qPrintable(drawn.name()));
    }

    void areaFadesAlongEachColumn_data()
    {
        const Rows<QByteArray, QPoint> row;
        row("gentle", "{ freq: 632.4555; gain: 10; quality: 0.5 }", QPoint(20, 280));
        row("steep", "{ freq: 632.4555; gain: 18; quality: 4 }", QPoint(20, 280));
        row("a pixel wide", "{ freq: 632.4555; gain: 18; quality: 40 }", QPoint(130, 170));
        row("below the axis", "{ freq: 632.4555; gain: -18; quality: 6 }", QPoint(20, 280));
    }

    void areaFadesAlongEachColumn()
    {
        const auto &[filters, flank] = Rows<QByteArray, QPoint>::current();
        if (!QGuiApplication::platformName().contains(QLatin1String("xcb")))
            QSKIP("Needs a display.");
        const Page page("style: QtObject { property color aggregatedAreaColor: '#0000ff'\n"
                        "property real areaSaturationNearAggregatedCurve: 0.8\n"
                        "property real areaSaturationNearxAchsis: 0.1 }\n"
                        "calculationItems: RBodeplotEqFilter " +
                        filters);
        QQuickWindow window;
        window.resize(300, 400);
        static_cast<QQuickItem *>(page.root.get())->setParentItem(window.contentItem());
        window.show();
        QVERIFY(QTest::qWaitForWindowExposed(&window));
        const QImage image = window.grabWindow();
        const int ratio = qRound(window.effectiveDevicePixelRatio());
        constexpr double axis = 200.0;
        double worst = 0.0;
        QPoint place;
        for (int column = flank.x() * ratio; column < flank.y() * ratio; ++column) {
            const double x = (column + 0.5) / ratio;
            const double lineY = lineAt(page.curve->lines().aggregated().points, x);
            for (int row = 0; row < image.height(); ++row) {
                const double y = (row + 0.5) / ratio;
                const double share = (axis - y) / (axis - lineY);
                if (std::abs(lineY - y) < 1.0 || std::abs(axis - y) < 1.0 || share < 0.0 || share > 1.0)
                    continue;
                const double expected = 0.1 + 0.7 * share;
                const double error = std::abs(1.0 - image.pixelColor(column, row).redF() - expected);
                if (error > worst) {
                    worst = error;
                    place = {column, row};
                }
            }
        }
        QVERIFY2(worst < 0.05, qPrintable(QStringLiteral("%1 at %2, %3").arg(worst).arg(place.x()).arg(place.y())));
    }
};

template struct TestClass<tst_CurveDrawing>;
#include "tst_CurveDrawing.moc"
