import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! The meters of all channels of the signal, in as many rows as they need, and what the signal is. */
Column {
    id: root

    spacing: theme.dp(16)

    Row {
        spacing: theme.dp(16)

        RButton {
            width: theme.dp(120)
            text: qsTr("&Reset clips")
            onClicked: {
                for (let i = 0; i < strips.count; ++i)
                    (strips.itemAt(i) as ChannelStrip).reset()
            }
        }
        RText {
            anchors.verticalCenter: parent.verticalCenter
            text: qsTr("%1, channels: %2").arg(GalleryAudio.sourceName).arg(GalleryAudio.channels)
        }
    }
    Item {
        width: root.width
        height: flow.height

        RAxis {
            x: theme.dp(24)
            y: theme.dp(24)
            width: theme.dp(4)
            height: theme.dp(248)
            leftSided: true
            minValue: -60
            maxValue: 0
            tickCount: 13
        }
        Flow {
            id: flow
            x: theme.dp(28)
            width: parent.width - x
            spacing: theme.dp(8)

            Repeater {
                id: strips
                model: GalleryAudio.levels

                ChannelStrip {
                    required property var modelData

                    level: modelData
                }
            }
        }
    }
}
