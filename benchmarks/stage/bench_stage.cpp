// What a frame of the gallery's plan costs, 2,000 blocks with value bars in a window of 1280 × 720: CPU time of the
// process on the Null graphics backend, all but the drawing itself. A frame at 60 Hz has 16.7 ms. No display is needed.

#include "support/ControlScene.h"

#include "EditHistory.h"
#include "InstallationClient.h"
#include "InstalledDevices.h"
#include "StageModel.h"
#include "workspace/RWorkspaceSelection.h"
#include "workspace/WorkspaceBase.h"

#include <benchmark/benchmark.h>

#include <QtGui/QGuiApplication>
#include <QtQml/QQmlContext>
#include <QtTest/QTest>

#include <cmath>
#include <functional>
#include <vector>

using namespace tamble::client;

namespace {

constexpr int framesPerRun = 120;

/// The installation, its plan, and the worksheet that shows it.
class Stage
{
public:
    explicit Stage(ControlScene &scene)
        : m_scene(scene)
    {
        scene.engine().rootContext()->setContextProperty(QStringLiteral("stage"), &m_model);
        QQmlComponent component(&scene.engine());
        component.setData("import QtQuick\nimport TambleClient.Control 1.0\n"
                          "RWorksheet { width: 1280; height: 720; RWorkspace { planeRect: stage.area; "
                          "minimumZoom: 0.1; zoom: 0.5; onItemsMoved: (before, after, cause) => "
                          "stage.move(before, after, cause); Repeater { model: stage; StageBlock {} } } }",
                          QUrl::fromLocalFile(QStringLiteral(TAMBLE_FESTIVAL "/Bench.qml")));
        const double begin = processSeconds();
        m_sheet = scene.create(component);
        m_secondsToMake = processSeconds() - begin;
        m_workspace = m_sheet->findChild<WorkspaceBase *>();
        scene.window().resize(1280, 720);
        scene.awaitFrame();
    }

    double secondsToMake() const { return m_secondsToMake; }
    WorkspaceBase &workspace() { return *m_workspace; }
    SimulatedNetwork &network() { return m_network; }
    EventQueue &queue() { return m_queue; }
    QQuickWindow &window() { return m_scene.window(); }

    /// CPU time of a frame in each of which `step` happens, with the number of the frame.
    double secondsPerFrame(const std::function<void(int frame)> &step)
    {
        const double begin = processSeconds();
        for (int frame = 0; frame < framesPerRun; ++frame) {
            step(frame);
            m_scene.awaitFrame();
        }
        return (processSeconds() - begin) / framesPerRun;
    }

private:
    ControlScene &m_scene;
    EventQueue m_queue;
    InstalledDevices m_devices;
    SimulatedNetwork m_network{m_queue, m_devices, 1};
    InstallationClient m_client{m_queue, m_devices, m_network};
    EditHistory m_history;
    StageModel m_model{m_client, m_history, nullptr};
    std::unique_ptr<QQuickItem> m_sheet;
    WorkspaceBase *m_workspace = nullptr;
    double m_secondsToMake = 0.0;
};

/// There and back again, 0 to 1.
double swing(int frame)
{
    return 0.5 - 0.5 * std::cos(2.0 * M_PI * frame / framesPerRun);
}

double pan(Stage &stage, double zoom)
{
    WorkspaceBase &view = stage.workspace();
    view.setZoom(zoom);
    const double from = view.viewX();
    const double travel = 1200.0 / zoom;
    const double seconds = stage.secondsPerFrame([&](int frame) { view.setViewX(from + travel * swing(frame)); });
    view.setViewX(from);
    return seconds;
}

double zoom(Stage &stage)
{
    WorkspaceBase &view = stage.workspace();
    const double seconds =
        stage.secondsPerFrame([&](int frame) { view.zoomTo(0.2 * std::pow(10.0, swing(frame)), QPointF(640, 360)); });
    view.setZoom(0.5);
    return seconds;
}

double drag(Stage &stage, int blocks)
{
    WorkspaceBase &view = stage.workspace();
    view.zoomToFit();
    const QList<QObject *> items = view.items();
    QStringList ids;
    for (int i = 0; i < blocks; ++i)
        ids.append(items[i + 27]->property("itemId").toUuid().toString(QUuid::WithoutBraces));
    view.selection()->selectIds(ids);
    const QPointF centre = items[27]->property("position").toPointF() + QPointF(48, 32);
    const QPoint place = view.mapToScene(view.mapFromPlane(centre)).toPoint();
    QTest::mousePress(&stage.window(), Qt::LeftButton, {}, place);
    const double seconds = stage.secondsPerFrame(
        [&](int frame) { QTest::mouseMove(&stage.window(), place + QPoint(20 + frame / 2, frame % 40)); });
    if (view.movingIds().size() != blocks)
        qFatal("%d blocks move", int(view.movingIds().size()));
    view.cancelGesture();
    QTest::mouseRelease(&stage.window(), Qt::LeftButton, {}, place);
    return seconds;
}

/// Each amplifier gets another temperature, and another gain at an output of 24 loudspeakers, in every frame.
double feed(Stage &stage)
{
    stage.workspace().zoomToFit();
    return stage.secondsPerFrame([&](int frame) {
        for (int amplifier = 0; amplifier < amplifierCount; ++amplifier) {
            stage.network().measure(amplifier, 25.0 + frame % 20);
            stage.network().editElsewhere(amplifier, fieldIndex(u"output1Gain"), -60.0 + frame % 60);
        }
        stage.queue().advance(100);
    });
}

} // namespace

int main(int argc, char **argv)
{
    drawNothing();
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    ControlScene scene;
    Stage stage(scene);
    const auto add = [](const char *name, int iterations, const std::function<double()> &run) {
        benchmark::RegisterBenchmark(name,
                                     [run](benchmark::State &state) {
                                         for (auto _ : state)
                                             state.SetIterationTime(run());
                                     })
            ->Iterations(iterations)
            ->UseManualTime()
            ->Unit(benchmark::kMillisecond);
    };
    add("make the page", 1, [&stage] { return stage.secondsToMake(); });
    add("rest, all in view", 3, [&stage] {
        stage.workspace().zoomToFit();
        return stage.secondsPerFrame([](int) {});
    });
    add("pan at zoom 1", 3, [&stage] { return pan(stage, 1.0); });
    add("pan at zoom 0.5", 3, [&stage] { return pan(stage, 0.5); });
    add("pan at zoom 0.2", 3, [&stage] { return pan(stage, 0.2); });
    add("zoom from 0.2 to 2", 3, [&stage] { return zoom(stage); });
    add("drag 500 blocks, all in view", 3, [&stage] { return drag(stage, 500); });
    add("600 values, all in view", 3, [&stage] { return feed(stage); });
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
