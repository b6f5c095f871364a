#include "workspace/EdgeSpeed.h"
#include "workspace/PlaneView.h"

#include "support/Rows.h"
#include "support/TestProgram.h"

#include <cmath>
#include <functional>
#include <limits>

using namespace tamble::client;

/// A view of 400 by 200 pixels onto a plane of 4000 by 3000, at 2 pixels per unit.
class tst_PlaneView : public QObject
{
    Q_OBJECT

    using Change = std::function<void(PlaneView &)>;
    static constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

    static PlaneView changed(const Change &change)
    {
        PlaneView view;
        view.setViewport({400, 200});
        view.setUnit(2.0);
        view.setView({1000, 500});
        change(view);
        view.clamp();
        return view;
    }

private Q_SLOTS:
    void whatIsSeen_data()
    {
        const auto row =
            rowsOf([](const Change &change, const QRectF &seen) { QCOMPARE(changed(change).seen(), seen); });
        row("zoom 1", [](auto &) {}, {1000, 500, 200, 100});
        row("zoom 2", [](auto &view) { view.setZoom(2); }, {1000, 500, 100, 50});
        row("about the middle", [](auto &view) { view.zoomAbout(2, {200, 100}); }, {1050, 525, 100, 50});
        row("as far as allowed", [](auto &view) { view.zoomAbout(1e9, {400, 200}); }, {1150, 575, 50, 25});
        row("limits the wrong way round",
            [](auto &view) {
                view.setMinimumZoom(2);
                view.setMaximumZoom(1);
            },
            {1000, 500, 100, 50});
        row("limits that are no factors",
            [](auto &view) {
                view.setMinimumZoom(-1);
                view.setMaximumZoom(notANumber);
            },
            {1000, 500, 200, 100});
        row("not a number",
            [](auto &view) {
                view.setView({notANumber, 3});
                view.setZoom(notANumber);
                view.setUnit(0);
                view.zoomAbout(2, {notANumber, 0});
                view.setPlane({0, 0, notANumber, 4});
                view.pan({notANumber, 0});
                view.fit({notANumber, 0, 1, 1}, 4);
            },
            {1000, 500, 200, 100});
        row("beyond the left and the top", [](auto &view) { view.setView({-1e9, -1e9}); }, {-168, -68, 200, 100});
        row("beyond the right and the bottom", [](auto &view) { view.setView({1e9, 1e9}); }, {3968, 2968, 200, 100});
        row("small plane", [](auto &view) { view.setPlane({100, 100, 100, 50}); }, {50, 75, 200, 100});
        row("narrow plane", [](auto &view) { view.setPlane({100, 100, 100, 3000}); }, {50, 500, 200, 100});
        row("less than 64 pixels",
            [](auto &view) {
                view.setViewport({40, 20});
                view.setView({-1e9, 0});
            },
            {0, 0, 20, 10});
        row("panned", [](auto &view) { view.pan({-40, 20}); }, {980, 510, 200, 100});
        row("fit by width", [](auto &view) { view.fit({100, 100, 352, 10}, 4); }, {76, 5, 400, 200});
        row("fit by height", [](auto &view) { view.fit({500, 500, 19, 19}, 4); }, {484.5, 497, 50, 25});
        row("fit at most", [](auto &view) { view.fit({500, 500, 1, 1}, 1); }, {400.5, 450.5, 200, 100});
        row("fit stopped", [](auto &view) { view.fit({0, 0, 4000, 3000}, 4); }, {1500, 1250, 1000, 500});
    }
    void whatIsSeen() { checkRow(); }

    void ensureVisible_data()
    {
        const auto row = rowsOf([](const QRectF &rect, const QPointF &view) {
            const auto shown = changed([&rect](PlaneView &plane) { plane.ensureVisible(rect); });
            QCOMPARE(shown.view(), view);
        });
        row("seen", {1010, 510, 20, 20}, {1000, 500});
        row("left and above", {900, 400, 20, 20}, {900, 400});
        row("right and below", {1300, 700, 20, 20}, {1120, 620});
        row("too large", {1100, 550, 900, 900}, {1100, 550});
        row("too large, beginning before", {900, 450, 900, 900}, {900, 450});
        row("not a number", {900, notANumber, 20, 20}, {1000, 500});
    }
    void ensureVisible() { checkRow(); }

    void edges_data()
    {
        const auto row = rowsOf([](const QPointF &pointer, const QPointF &speed) {
            QCOMPARE(edgeSpeed(pointer, {400, 200}), speed);
        });
        row("inside", {24, 100}, {0, 0});
        row("half way", {12, 100}, {-300, 0});
        row("at the corner", {400, 200}, {600, 600});
        row("beyond", {-500, 100}, {-600, 0});
    }
    void edges() { checkRow(); }

    void mapping()
    {
        const PlaneView view = changed([](PlaneView &plane) { plane.setZoom(1.5); });
        QCOMPARE(view.toPixels({1010, 520}), QPointF(30, 60));
        QCOMPARE(view.toPlane({30, 60}), QPointF(1010, 520));
    }

    // What a page sets before it is laid out must not be limited by a viewport that is not there.
    void withoutViewport()
    {
        PlaneView view;
        view.setView({-500, 5000});
        view.setZoom(9);
        view.clamp();
        QCOMPARE(view.view(), QPointF(-500, 5000));
        QVERIFY(!view.fit({0, 0, 10, 10}, 1));
        QCOMPARE(view.zoom(), 4.0);
    }
};

template struct TestClass<tst_PlaneView>;
#include "tst_PlaneView.moc"
