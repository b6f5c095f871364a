// What the shell of a client costs, its bars, panes, dialogs, accordions and lists, beside Qt Quick Controls Basic's of
// the same kind. Times are CPU time of the process, memory is the C++ heap; "of Basic" are the medians of the ratios.
//   create  a control through its QML component, in a window, without a frame: us, bytes
// No display is needed.

#include "support/Comparison.h"

#include <QtGui/QGuiApplication>

#include <array>

namespace {

constexpr std::array pairs = {
    Pair{"closed dialog",
         "Item { RDialog { title: 'Name'; standardButtons: 0x400 | 0x400000; Item { implicitHeight: 40 } } }",
         "Item { Dialog { title: 'Name'; standardButtons: 0x400 | 0x400000; modal: true; Item { implicitHeight: 40 } } "
         "}"},
    Pair{"closed section", "RAccordionItem { title: 'Channel' }", "ItemDelegate { width: 288; text: 'Channel' }"},
    Pair{"open dialog",
         "Item { RDialog { visible: true; title: 'Name'; standardButtons: 0x400 | 0x400000;"
         " Item { implicitHeight: 40 } } }",
         "Item { Dialog { visible: true; title: 'Name'; standardButtons: 0x400 | 0x400000; modal: true;"
         " Item { implicitHeight: 40 } } }"},
    Pair{"navigation button", "RAppBarNavButton { text: 'Mixer' }", "TabButton { text: 'Mixer' }"},
    Pair{"tab button", "RTabButton { text: 'Mixer' }", "TabButton { text: 'Mixer' }"},
    Pair{
        "open menu",
        "import QtQuick.Templates as T\nItem { RMenu { visible: true; T.MenuItem { text: 'Copy' } T.MenuItem { text: "
        "'Paste' } T.MenuItem { text: 'Delete' } } }",
        "Item { Menu { visible: true; MenuItem { text: 'Copy' } MenuItem { text: 'Paste' } MenuItem { text: 'Delete' } "
        "} }"},
    Pair{"pane", "RPane {}", "Pane {}"},
    Pair{"list of 20 rows", "RListView { width: 200; height: 640; model: 20 }",
         "ListView { width: 200; height: 640; model: 20; delegate: ItemDelegate { required property int modelData; "
         "width: 200; height: 32; text: modelData } }"},
    Pair{"progress bar", "RProgressBar { value: 0.4 }", "ProgressBar { value: 0.4 }"},
};

} // namespace

int main(int argc, char **argv)
{
    drawNothing();
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    ControlScene scene;
    for (const Pair &pair : pairs)
        addCreation(scene, pair);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
