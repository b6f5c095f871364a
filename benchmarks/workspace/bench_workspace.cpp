// What a canvas with thousands of items costs. Times are CPU time of the process; the ratios are medians.
//   pan, zoom  a frame of 2,000 items of which 40 are in view, beside one of these 40 alone: us
//   empty      such a frame beside one of an empty page: us
//   move       a step of dragging 500 selected items of 2,000, beside placing 500 Items: us; "bare" are those without
//              a look, "keys" is a step by the arrow keys' way, without what Qt does for an event of the pointer
//   values     600 live value bars that are out of view, beside as many properties with the same binding: us
//   create     2,000 items on a workspace from C++, beside plain ones with parent, position and size: us
// No display is needed.

#include "support/Comparison.h"

#include "workspace/WorkspaceBase.h"
#include "workspace/WorkspaceItemBase.h"

#include <QtGui/QGuiApplication>
#include <QtGui/QMouseEvent>

#include <memory>
#include <vector>

using namespace tamble::client;

namespace {

constexpr int itemsInView = 40;
constexpr int manyItems = 2000;
constexpr int movedItems = 500;
constexpr int rounds = 20;

/// A page of 1280 by 800 on which 8 by 5 items are seen.
const char worksheet[] = "RWorksheet { id: page; width: 1280; height: 800; property int count\n"
                         "property RWorkspace canvas: canvas\n"
                         "RWorkspace { id: canvas; anchors.fill: parent; planeRect: Qt.rect(0, 0, 20000, 20000)\n"
                         "Repeater { model: page.count; %1; required property int index\n"
                         "position: Qt.point(160 * (index % 8 + 8 * Math.floor(index / 400)) + 20,"
                         " 160 * (Math.floor(index / 8) % 50) + 20) } } } }";

constexpr const char *styledItem = "RWorkspaceItem { title: 'Amplifier'";
constexpr const char *bareItem = "RWorkspaceItemBase { width: 96; height: 64";

class Pages
{
public:
    explicit Pages(ControlScene &scene, const char *item = styledItem)
        : m_scene(scene)
        , m_component(scene.compile(ourModule, QByteArray(worksheet).replace("%1", item).constData()))
    {}

    std::unique_ptr<QQuickItem> make(int count)
    {
        auto made = m_scene.create(*m_component);
        made->setProperty("count", count);
        made->setVisible(false);
        return made;
    }
    static WorkspaceBase &canvasOf(const QQuickItem &page) { return *page.property("canvas").value<WorkspaceBase *>(); }

private:
    ControlScene &m_scene;
    std::unique_ptr<QQmlComponent> m_component;
};

using Step = void (*)(WorkspaceBase &, int);

void pan(WorkspaceBase &canvas, int step)
{
    canvas.setViewX(step % 2 == 0 ? 3.0 : 0.0);
}

void zoom(WorkspaceBase &canvas, int step)
{
    canvas.setZoom(step % 2 == 0 ? 1.02 : 1.0);
}

Measure framesOf(ControlScene &scene, QQuickItem &page, Step step)
{
    return [&scene, &page, step] {
        constexpr int frames = 10;
        page.setVisible(true);
        scene.awaitFrame();
        scene.awaitFrame();
        const double before = processSeconds();
        for (int frame = 0; frame < frames; ++frame) {
            step(Pages::canvasOf(page), frame);
            scene.awaitFrame();
        }
        const double seconds = processSeconds() - before;
        page.setVisible(false);
        return Cost{seconds / frames, 0.0};
    };
}

void compareFrames(benchmark::State &state, int otherCount, Step step)
{
    ControlScene scene;
    Pages pages(scene);
    const auto many = pages.make(manyItems);
    const auto others = pages.make(otherCount);
    compare(state, framesOf(scene, *many, step), framesOf(scene, *others, step), "us", 1e6);
}

void sendMouse(QQuickWindow &window, QEvent::Type type, const QPointF &place)
{
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons buttons = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, place, button, buttons, Qt::NoModifier);
    QCoreApplication::sendEvent(&window, &event);
}

void compareMoves(benchmark::State &state, const char *kind, bool isByKeys)
{
    constexpr int steps = 20;
    ControlScene scene;
    Pages pages(scene, kind);
    const auto made = pages.make(manyItems);
    made->setVisible(true);
    scene.awaitFrame();
    auto &canvas = Pages::canvasOf(*made);
    QList<WorkspaceItemBase *> items;
    for (QObject *moved : canvas.items().first(movedItems))
        items.append(static_cast<WorkspaceItemBase *>(moved));
    canvas.selection()->assign(items, nullptr);
    const QPointF grip = canvas.mapToScene(canvas.mapFromPlane(items.first()->planeRect().center()));

    const auto plainComponent = scene.compile(ourModule, "Item { Repeater { model: 500; Item {} } }");
    const auto plain = scene.create(*plainComponent);

    const auto moveOurs = [&] {
        sendMouse(scene.window(), QEvent::MouseButtonPress, grip);
        sendMouse(scene.window(), QEvent::MouseMove, grip + QPointF(60.0, 60.0));
        const double before = processSeconds();
        for (int step = 1; step <= steps; ++step)
            sendMouse(scene.window(), QEvent::MouseMove, grip + QPointF(60.0 + 8.0 * step, 60.0));
        const double seconds = processSeconds() - before;
        canvas.cancelGesture();
        sendMouse(scene.window(), QEvent::MouseButtonRelease, grip);
        return Cost{seconds / steps, 0.0};
    };
    const auto movePlain = [&] {
        const double before = processSeconds();
        for (int step = 1; step <= steps; ++step) {
            for (QQuickItem *item : plain->childItems())
                item->setPosition(QPointF(8.0 * step, 60.0));
        }
        return Cost{(processSeconds() - before) / steps, 0.0};
    };
    const auto nudgeOurs = [&] {
        canvas.nudge(8.0, 0.0);
        const double before = processSeconds();
        for (int step = 1; step <= steps; ++step)
            canvas.nudge(8.0, 0.0);
        const double seconds = processSeconds() - before;
        canvas.cancelGesture();
        return Cost{seconds / steps, 0.0};
    };
    compare(state, isByKeys ? Measure(nudgeOurs) : Measure(moveOurs), movePlain, "us", 1e6);
}

// A frame in which a value changes to which all bars, or plain properties, are bound.
Measure valuesOf(ControlScene &scene, QQuickItem &page)
{
    return [&scene, &page] {
        constexpr int frames = 20;
        const double before = processSeconds();
        for (int frame = 0; frame < frames; ++frame) {
            page.setProperty("level", frame);
            scene.window().update();
            scene.awaitFrame();
        }
        return Cost{(processSeconds() - before) / frames, 0.0};
    };
}

void compareValues(benchmark::State &state)
{
    ControlScene scene;
    const auto canvasComponent = scene.compile(
        ourModule, "RWorkspace { id: page; width: 1280; height: 800; planeRect: Qt.rect(0, 0, 9000, 9000)\n"
                   "property real level; Repeater { model: 600; RWorkspaceItem { position: Qt.point(20, 20)\n"
                   "valueBar: RWorkspaceItemValueBar { value: page.level } } } }");
    const auto plainComponent = scene.compile(
        ourModule, "Item { id: page; width: 1280; height: 800; property real level\n"
                   "Repeater { model: 600; Loader { sourceComponent: Item { property real value: page.level } } } }");
    const auto canvas = scene.create(*canvasComponent);
    scene.awaitFrame(); // which makes the bars
    canvas->setProperty("viewX", 5000.0);
    scene.awaitFrame();
    const auto plain = scene.create(*plainComponent);
    compare(state, valuesOf(scene, *canvas), valuesOf(scene, *plain), "us", 1e6);
}

template <typename Item, typename Place>
Cost costOfMaking(QQuickItem &parent, Place place)
{
    std::vector<std::unique_ptr<Item>> items;
    items.reserve(manyItems);
    const double before = processSeconds();
    for (int i = 0; i < manyItems; ++i) {
        items.push_back(std::make_unique<Item>());
        items.back()->setParentItem(&parent);
        place(*items.back(), QPointF(160.0 * (i % 50), 160.0 * (i / 50)));
    }
    return Cost{processSeconds() - before, 0.0};
}

void compareMaking(benchmark::State &state)
{
    ControlScene scene;
    WorkspaceBase canvas(scene.window().contentItem());
    QQuickItem plane(scene.window().contentItem());
    const auto ours = [&canvas] {
        return costOfMaking<WorkspaceItemBase>(*canvas.plane(), [](WorkspaceItemBase &item, const QPointF &place) {
            item.setPlanePosition(place);
            item.setPlaneSize(QSizeF(96.0, 64.0));
        });
    };
    const auto plain = [&plane] {
        return costOfMaking<QQuickItem>(plane, [](QQuickItem &item, const QPointF &place) {
            item.setPosition(place);
            item.setSize(QSizeF(96.0, 64.0));
        });
    };
    compare(state, ours, plain, "us", 1e6);
}

} // namespace

int main(int argc, char **argv)
{
    drawNothing();
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    addComparison("pan", rounds, [](benchmark::State &state) { compareFrames(state, itemsInView, pan); });
    addComparison("zoom", rounds, [](benchmark::State &state) { compareFrames(state, itemsInView, zoom); });
    addComparison("empty", rounds, [](benchmark::State &state) { compareFrames(state, 0, pan); });
    addComparison("move", rounds, [](benchmark::State &state) { compareMoves(state, styledItem, false); });
    addComparison("move/keys", rounds, [](benchmark::State &state) { compareMoves(state, styledItem, true); });
    addComparison("move/bare", rounds, [](benchmark::State &state) { compareMoves(state, bareItem, false); });
    addComparison("values", rounds, compareValues);
    addComparison("create", rounds, compareMaking);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
