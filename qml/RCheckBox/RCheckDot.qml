import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Dot at the corner of the box of a check box that the device has not confirmed. */
RConfirmDot {
    id: root

    readonly property var control: root.parent
    readonly property real distance: root.control.boxSize - root.width / 2

    objectName: "dot"
    x: root.control.boxAtRightEdge ? root.control.width - root.distance - root.width : root.distance
    y: (root.control.height - root.control.boxSize - root.height) / 2
    color: root.control.ssBorderColor
    pulsing: !root.control.confirmed
    visible: root.pulsing
}
