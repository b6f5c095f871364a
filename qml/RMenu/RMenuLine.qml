import QtQuick
import TambleClient.Control 1.0

/*! Line between entries of a menu. */
Item {
    id: root

    required property RMenuBase menu

    implicitHeight: 9 * RThemeValues.unit

    Rectangle {
        anchors.fill: parent
        color: root.menu.ssBackgroundItem
    }
    Rectangle {
        y: 4 * RThemeValues.unit
        width: root.width
        height: RThemeValues.unit
        color: root.menu.ssForegroundItem
        opacity: 0.3
    }
}
