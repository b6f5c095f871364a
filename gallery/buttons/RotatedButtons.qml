import QtQuick
import TambleClient.Control 1.0

/*! The same button at several angles. One that stands on its side keeps its line, one at any other angle has none. */
Flow {
    id: root

    width: parent?.width ?? 0
    spacing: theme.dp(8)

    Repeater {
        model: [0, 90, -90, 180, 45]

        Item {
            id: place

            required property int modelData

            width: theme.dp(88)
            height: theme.dp(112)

            RText {
                anchors.horizontalCenter: parent.horizontalCenter
                text: qsTr("%1\u00b0").arg(place.modelData)
            }
            RButton {
                x: (place.width - width) / 2
                y: theme.dp(64) - height / 2
                width: theme.dp(88)
                rotation: place.modelData
                text: qsTr("Channel")
                selected: true
            }
        }
    }
}
