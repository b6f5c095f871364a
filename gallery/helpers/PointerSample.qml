import QtQuick
import TambleClient.Control 1.0

/*! An area with a cursor of its own, and what the helpers know of the pointer. */
Column {
    id: root

    width: parent?.width ?? 0
    spacing: theme.dp(8)

    Rectangle {
        width: parent.width
        height: theme.dp(96)
        color: "transparent"
        border.width: theme.dp(1)
        border.color: said.color

        RMouseCursor {
            shape: Qt.CrossCursor
        }
        RMouseDetection {
            id: detection
            anchors.fill: parent
        }
        RText {
            id: said
            anchors.centerIn: parent
            text: !detection.containsMouse ? qsTr("The pointer is elsewhere") : detection.pressedInside ? qsTr("Pressed at %1, %2").arg(Math.round(detection.mouseX)).arg(Math.round(detection.mouseY)) : qsTr("The pointer is at %1, %2").arg(Math.round(detection.mouseX)).arg(Math.round(detection.mouseY))
        }
    }
    RText {
        width: parent.width
        text: qsTr("Anywhere in the window: %1. Nothing was touched for %2 s.").arg(RMouseEventSpy.anyPressed ? qsTr("pressed") : qsTr("not pressed")).arg(Math.floor(RMouseEventSpy.idleTime / 1000))
        wrapMode: Text.Wrap
    }
}
