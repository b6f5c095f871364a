import QtQuick
import QtQuick.Controls.Basic
import BasicClient

/*! The window: the bar, and the page of devices below it. */
ApplicationWindow {
    id: root

    required property Installation installation

    function turn(pages: int) {
        bar.currentIndex = (bar.currentIndex + pages + bar.pages.length) % bar.pages.length
    }

    visible: true
    width: 1280
    height: 800
    title: qsTr("%1 - Festival").arg(bar.pages[bar.currentIndex].title)
    header: ClientBar {
        id: bar
        installation: root.installation
        onAlarmsAsked: {
            page.alarmsOnly = true
            bar.currentIndex = 0
        }
    }

    Shortcut {
        sequence: "Ctrl+Z"
        onActivated: root.installation.history.undo()
    }
    Shortcut {
        sequences: ["Ctrl+Shift+Z", "Ctrl+Y"]
        onActivated: root.installation.history.redo()
    }
    Shortcut {
        sequences: ["Ctrl+PgDown", "Ctrl+Tab"]
        onActivated: root.turn(1)
    }
    Shortcut {
        sequences: ["Ctrl+PgUp", "Ctrl+Shift+Tab"]
        onActivated: root.turn(-1)
    }
    DevicesPage {
        id: page
        anchors.fill: parent
        anchors.margins: 16
        visible: bar.currentIndex === 0
        focus: true
        installation: root.installation
    }
}
