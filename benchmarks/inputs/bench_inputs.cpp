// What input controls cost beside those of Qt Quick Controls Basic of the same kind, taken by turns, so that both meet
// the same state of the machine. Times are CPU time of the process, memory is the C++ heap; "of Basic" are the medians
// of the ratios.
//   create  a control through its QML component, in a window, without a frame: us, bytes
//   open    the list of a combo box with 10,000 entries, until it is on the screen: ms; "first" makes the list
//   search  a letter that only the last of 10,000 entries begins with, typed in the open list: ms
// Frames are those of the Null graphics backend: all but the drawing itself. No display is needed.

#include "InputScene.h"

#include <benchmark/benchmark.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>

#include <algorithm>
#include <array>
#include <functional>
#include <string>
#include <vector>

namespace {

/// A control of the module and Qt's of the same kind.
struct Pair
{
    const char *name;
    const char *ours;
    const char *basic;
};

constexpr std::array pairs = {
    Pair{"text field", "RTextField { text: 'Level' }", "TextField { text: 'Level' }"},
    Pair{"check box", "RCheckBox { text: 'Level' }", "CheckBox { text: 'Level' }"},
    Pair{"combo box", "RComboBox { model: 3 }", "ComboBox { model: 3 }"},
    Pair{"spin box", "RSpinBox {}", "SpinBox {}"},
    Pair{"text area", "RTextArea {}", "ScrollView { TextArea {} }"},
};
constexpr Pair longList = {"10,000 entries", "RComboBox { model: channels; textRole: 'display' }",
                           "ComboBox { model: channels; textRole: 'display' }"};

constexpr const char *ourModule = "TambleClient.Control 1.0";
constexpr const char *basicModule = "QtQuick.Controls.Basic";

double median(std::vector<double> &values)
{
    const auto middle = values.begin() + std::ptrdiff_t(values.size() / 2);
    std::nth_element(values.begin(), middle, values.end());
    return *middle;
}

struct Cost
{
    double seconds = 0.0;
    double bytes = 0.0;
};

/// Takes both by turns and reports our costs and their ratios.
template <typename Measure>
void compare(benchmark::State &state, Measure ours, Measure basic, const char *unit, double perSecond)
{
    std::vector<double> seconds, bytes, secondsRatios, bytesRatios;
    for (auto _ : state) {
        const Cost there = basic();
        const Cost here = ours();
        state.SetIterationTime(here.seconds);
        seconds.push_back(here.seconds * perSecond);
        secondsRatios.push_back(here.seconds / there.seconds);
        if (there.bytes > 0.0) {
            bytes.push_back(here.bytes);
            bytesRatios.push_back(here.bytes / there.bytes);
        }
    }
    state.counters[unit] = median(seconds);
    state.counters["time of Basic"] = median(secondsRatios);
    if (!bytes.empty()) {
        state.counters["bytes"] = median(bytes);
        state.counters["heap of Basic"] = median(bytesRatios);
    }
}

void create(benchmark::State &state, InputScene &scene, const Pair &pair)
{
    constexpr std::size_t count = 200;
    const auto measured = [&scene](const char *module, const char *declaration) {
        return [&scene, component = std::shared_ptr<QQmlComponent>(scene.compile(module, declaration))] {
            std::vector<std::unique_ptr<QQuickItem>> items;
            items.reserve(count);
            scene.settle();
            const std::size_t heapBefore = heapBytes();
            const double begin = processSeconds();
            for (std::size_t i = 0; i < count; ++i)
                items.push_back(scene.create(*component));
            const double end = processSeconds();
            scene.settle();
            return Cost{(end - begin) / count, (double(heapBytes()) - double(heapBefore)) / count};
        };
    };
    std::function<Cost()> ours = measured(ourModule, pair.ours);
    std::function<Cost()> basic = measured(basicModule, pair.basic);
    ours();
    basic();
    compare(state, ours, basic, "us", 1e6);
}

QObject *listOf(QQuickItem &box)
{
    return box.property("popup").value<QObject *>();
}

double secondsToOpen(InputScene &scene, QQuickItem &box)
{
    const double begin = processSeconds();
    QMetaObject::invokeMethod(listOf(box), "open");
    scene.awaitFrame();
    const double end = processSeconds();
    if (!listOf(box)->property("visible").toBool())
        qFatal("the list does not open");
    return end - begin;
}

void close(InputScene &scene, QQuickItem &box)
{
    QMetaObject::invokeMethod(listOf(box), "close");
    scene.awaitFrame();
}

void openFirst(benchmark::State &state, InputScene &scene)
{
    const auto measured = [&scene](const char *module, const char *declaration) {
        return [&scene, component = std::shared_ptr<QQmlComponent>(scene.compile(module, declaration))] {
            const auto box = scene.create(*component);
            scene.awaitFrame();
            const Cost cost{secondsToOpen(scene, *box)};
            close(scene, *box);
            return cost;
        };
    };
    std::function<Cost()> ours = measured(ourModule, longList.ours);
    std::function<Cost()> basic = measured(basicModule, longList.basic);
    ours();
    basic();
    compare(state, ours, basic, "ms", 1e3);
}

/// A combo box with the long list, which was open once.
std::shared_ptr<QQuickItem> usedBox(InputScene &scene, const char *module, const char *declaration)
{
    const auto component = scene.compile(module, declaration);
    std::shared_ptr<QQuickItem> box = scene.create(*component);
    secondsToOpen(scene, *box);
    close(scene, *box);
    return box;
}

void openAgain(benchmark::State &state, InputScene &scene)
{
    const auto measured = [&scene](const std::shared_ptr<QQuickItem> &box) {
        return [&scene, box] {
            const Cost cost{secondsToOpen(scene, *box)};
            close(scene, *box);
            return cost;
        };
    };
    std::function<Cost()> ours = measured(usedBox(scene, ourModule, longList.ours));
    std::function<Cost()> basic = measured(usedBox(scene, basicModule, longList.basic));
    compare(state, ours, basic, "ms", 1e3);
}

void search(benchmark::State &state, InputScene &scene)
{
    const auto measured = [&scene](const std::shared_ptr<QQuickItem> &box, const char *highlight) {
        return [&scene, box, highlight] {
            secondsToOpen(scene, *box);
            box->forceActiveFocus();
            QKeyEvent press(QEvent::KeyPress, Qt::Key_Z, Qt::NoModifier, QStringLiteral("z"));
            const double begin = processSeconds();
            QCoreApplication::sendEvent(&scene.window(), &press);
            scene.awaitFrame();
            const double end = processSeconds();
            if (box->property(highlight).toInt() != 9'999)
                qFatal("the entry is not found");
            close(scene, *box);
            return Cost{end - begin};
        };
    };
    std::function<Cost()> ours = measured(usedBox(scene, ourModule, longList.ours), "highlightedEntry");
    std::function<Cost()> basic = measured(usedBox(scene, basicModule, longList.basic), "highlightedIndex");
    compare(state, ours, basic, "ms", 1e3);
}

} // namespace

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // Without a display, Qt Quick would paint in software instead.
    qputenv("QT_QUICK_BACKEND", "rhi");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Null);
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    // Loading sheets is logged; where the log goes is no matter of a control.
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext &, const QString &text) {
        if (type == QtFatalMsg)
            fprintf(stderr, "%s\n", qPrintable(text));
    });

    InputScene scene;
    const auto add = [](const std::string &name, int iterations, auto run) {
        benchmark::RegisterBenchmark(name.c_str(), run)
            ->Iterations(iterations)
            ->UseManualTime()
            ->Unit(benchmark::kMicrosecond);
    };
    for (const Pair &pair : pairs)
        add(std::string("create/") + pair.name, 9, [&](benchmark::State &state) { create(state, scene, pair); });
    add("open/first", 25, [&](benchmark::State &state) { openFirst(state, scene); });
    add("open/again", 25, [&](benchmark::State &state) { openAgain(state, scene); });
    add("search", 25, [&](benchmark::State &state) { search(state, scene); });
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
