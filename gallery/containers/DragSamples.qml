import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! Presets to drag onto a device, one of which it refuses, and a rubber band. */
Column {
    id: root

    property string said: qsTr("Drag a preset onto the device.")

    spacing: theme.dp(16)

    Row {
        spacing: theme.dp(8)

        // qmllint disable unqualified
        Repeater {
            model: [qsTr("Speech"), qsTr("Music"), qsTr("Damaged")]

            RDraggableItem {
                id: preset

                required property string modelData

                dragData: modelData
                onCanceled: root.said = qsTr("%1 stays where it is.").arg(preset.modelData)

                RButton {
                    width: theme.dp(96)
                    text: preset.modelData
                }
            }
        }
        // qmllint enable unqualified
    }
    Surface {
        width: parent.width
        height: theme.dp(64)
        RStyleSet.typeName: "RFlyoutWindow"

        RText {
            anchors.centerIn: parent
            text: root.said
        }
        RFocusRectangle {
            visible: device.containsDrag
        }
        DropArea {
            id: device
            anchors.fill: parent
            keys: ["tamble"]
            onDropped: drop => {
                drop.accepted = drop.source.dragData !== qsTr("Damaged")
                if (drop.accepted)
                    root.said = qsTr("%1 is loaded.").arg(drop.source.dragData)
            }
        }
    }
    Surface {
        id: ground
        width: parent.width
        height: theme.dp(96)
        RStyleSet.typeName: "RFlyoutWindow"

        RText {
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            anchors.margins: theme.dp(4)
            text: qsTr("Drag a rubber band here.")
        }
        RSelectionRect {
            id: band
            start: Qt.point(theme.dp(24), theme.dp(16))
            end: Qt.point(theme.dp(160), theme.dp(72))
            active: true
        }
        MouseArea {
            anchors.fill: parent
            preventStealing: true
            onPressed: mouse => {
                band.start = Qt.point(mouse.x, mouse.y)
                band.end = band.start
            }
            onPositionChanged: mouse => band.end = Qt.point(mouse.x, mouse.y)
        }
    }
}
