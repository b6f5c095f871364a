import QtQuick
import TambleClient.Control 1.0

/*! What the helpers know of the pointer: over an area full of buttons, outside of a menu, during a drag. */
Column {
    id: root

    width: parent?.width ?? 0
    spacing: theme.dp(8)

    Rectangle {
        width: parent.width
        height: theme.dp(112)
        color: "transparent"
        border.width: theme.dp(detection.containsMouse ? 2 : 1)
        border.color: said.color

        RMouseCursor {
            source: "Crosshair.png"
            hotSpot: Qt.point(15, 15)
            shape: Qt.CrossCursor
            active: pictured.selected
        }
        RMouseDetection {
            id: detection
            anchors.fill: parent
            active: watched.selected
        }
        RText {
            id: said
            width: parent.width
            height: parent.height - buttons.height
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            text: !detection.active ? qsTr("Nobody looks where the pointer is") : !detection.containsMouse ? qsTr("The pointer is elsewhere") : (detection.pressedInside ? qsTr("Pressed at %1, %2") : qsTr("The pointer is at %1, %2")).arg(Math.round(detection.mouseX)).arg(Math.round(detection.mouseY))
            wrapMode: Text.Wrap
        }
        Row {
            id: buttons
            anchors.bottom: parent.bottom
            anchors.horizontalCenter: parent.horizontalCenter
            padding: theme.dp(8)
            spacing: theme.dp(8)

            RButton {
                id: watched
                width: theme.dp(112)
                text: qsTr("Detection")
                selectable: true
                selected: true
            }
            RButton {
                id: pictured
                width: theme.dp(112)
                text: qsTr("Cursor")
                selectable: true
                selected: true
            }
        }
    }
    Row {
        spacing: theme.dp(8)

        RButton {
            id: grip
            width: theme.dp(176)
            text: grip.pressed ? qsTr("Busy everywhere") : qsTr("Hold for a busy cursor")

            RMouseCursor {
                shape: Qt.BusyCursor
                overrideAll: true
                active: grip.pressed
            }
        }
        RButton {
            id: opener

            property int closings: 0

            width: theme.dp(176)
            text: opener.selected ? qsTr("Press elsewhere") : qsTr("Open (closed %1 times)").arg(opener.closings)
            onClicked: opener.selected = true

            RMouseDetection {
                anchors.fill: parent
                active: opener.selected
                onPressedOutside: {
                    opener.closings += 1
                    opener.selected = false
                }
            }
        }
    }
    RText {
        width: parent.width
        text: qsTr("Anywhere in the window: %1. Nothing was touched for %2 s.").arg(RMouseEventSpy.anyPressed ? qsTr("pressed") : qsTr("not pressed")).arg(Math.floor(RMouseEventSpy.idleTime / 1000))
        wrapMode: Text.Wrap
    }
}
