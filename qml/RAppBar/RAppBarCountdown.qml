import QtQuick
import TambleClient.Control 1.0

/*! Bar along the bottom of a button that is to be pressed again: it shrinks until that is too late. */
Rectangle {
    id: root

    readonly property RAppBarStateButtonBase button: root.parent as RAppBarStateButtonBase

    /*! What is left, 1 to 0. */
    property real rest: 0

    x: root.button.mirrored ? root.button.width - root.width : 0
    y: root.button.height - root.height
    width: root.rest * root.button.width
    height: 4 * RThemeValues.unit
    visible: root.button.armed
    color: root.button.ssColor

    NumberAnimation {
        target: root
        property: "rest"
        from: 1
        to: 0
        duration: root.button.armedTime
        running: root.button.armed
    }
}
