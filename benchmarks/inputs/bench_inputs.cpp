// What input controls cost beside those of Qt Quick Controls Basic of the same kind, taken by turns, so that both meet
// the same state of the machine. Times are CPU time of the process, memory is the C++ heap; "of Basic" are the medians
// of the ratios.
//   create  a control through its QML component, in a window, without a frame: us, bytes
//   open    the list of a combo box with 10,000 entries, until it is on the screen: ms; "first" makes the list
//   search  a letter that only the last of 10,000 entries begins with, typed in the open list: ms
// Frames are those of the Null graphics backend: all but the drawing itself. No display is needed.

#include "support/Comparison.h"

#include <QtCore/QStringListModel>
#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtQml/QQmlContext>

#include <array>

namespace {

constexpr std::array pairs = {
    Pair{"text field", "RTextField { text: 'Level' }", "TextField { text: 'Level' }"},
    Pair{"check box", "RCheckBox { text: 'Level' }", "CheckBox { text: 'Level' }"},
    Pair{"combo box", "RComboBox { model: 3 }", "ComboBox { model: 3 }"},
    Pair{"spin box", "RSpinBox {}", "SpinBox {}"},
    Pair{"text area", "RTextArea {}", "ScrollView { TextArea {} }"},
};
constexpr Pair longList = {"10,000 entries", "RComboBox { model: channels; textRole: 'display' }",
                           "ComboBox { model: channels; textRole: 'display' }"};

/// 10,000 names, of which the last alone begins with "Z".
QStringList channelNames()
{
    QStringList names;
    for (int i = 0; i < 9'999; ++i)
        names.append(QStringLiteral("Channel %1").arg(i));
    names.append(QStringLiteral("Zone"));
    return names;
}

QObject *listOf(QQuickItem &box)
{
    return box.property("popup").value<QObject *>();
}

double secondsToOpen(ControlScene &scene, QQuickItem &box)
{
    const double begin = processSeconds();
    QMetaObject::invokeMethod(listOf(box), "open");
    scene.awaitFrame();
    const double end = processSeconds();
    if (!listOf(box)->property("visible").toBool())
        qFatal("the list does not open");
    return end - begin;
}

void close(ControlScene &scene, QQuickItem &box)
{
    QMetaObject::invokeMethod(listOf(box), "close");
    scene.awaitFrame();
}

void openFirst(benchmark::State &state, ControlScene &scene)
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
    const Measure ours = measured(ourModule, longList.ours);
    const Measure basic = measured(basicModule, longList.basic);
    ours();
    basic();
    compare(state, ours, basic, "ms", 1e3);
}

/// A combo box with the long list, which was open once.
std::shared_ptr<QQuickItem> usedBox(ControlScene &scene, const char *module, const char *declaration)
{
    const auto component = scene.compile(module, declaration);
    std::shared_ptr<QQuickItem> box = scene.create(*component);
    secondsToOpen(scene, *box);
    close(scene, *box);
    return box;
}

void openAgain(benchmark::State &state, ControlScene &scene)
{
    const auto measured = [&scene](const std::shared_ptr<QQuickItem> &box) {
        return [&scene, box] {
            const Cost cost{secondsToOpen(scene, *box)};
            close(scene, *box);
            return cost;
        };
    };
    const Measure ours = measured(usedBox(scene, ourModule, longList.ours));
    const Measure basic = measured(usedBox(scene, basicModule, longList.basic));
    compare(state, ours, basic, "ms", 1e3);
}

void search(benchmark::State &state, ControlScene &scene)
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
    const Measure ours = measured(usedBox(scene, ourModule, longList.ours), "highlightedEntry");
    const Measure basic = measured(usedBox(scene, basicModule, longList.basic), "highlightedIndex");
    compare(state, ours, basic, "ms", 1e3);
}

} // namespace

int main(int argc, char **argv)
{
    drawNothing();
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);

    QStringListModel channels(channelNames());
    ControlScene scene;
    scene.engine().rootContext()->setContextProperty(QStringLiteral("channels"), &channels);
    for (const Pair &pair : pairs)
        addCreation(scene, pair);
    addComparison("open/first", 25, [&](benchmark::State &state) { openFirst(state, scene); });
    addComparison("open/again", 25, [&](benchmark::State &state) { openAgain(state, scene); });
    addComparison("search", 25, [&](benchmark::State &state) { search(state, scene); });
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
