import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! The channels of a mixer side by side, and the main mix at the end, which stays in view. */
Item {
    id: root

    required property int mixer

    /*! What the channels of the mixer carry: channels of the signal. */
    readonly property list<int> sources: [0, 2, 2, 0, 2, 1, 3, 4, 3, 4, 6, 7, 5, 10, 8, 10]

    DeviceSelection {
        id: device
        devices: [root.mixer]
        observed: false
    }
    DeviceField {
        id: mute
        target: device
        field: "mute"
    }
    RHorizontalScrollView {
        id: view
        width: root.width - main.width - theme.dp(8)
        height: root.height
        spacing: theme.dp(2)

        // qmllint disable unqualified
        Repeater {
            model: 16

            MixerStrip {
                required property int index

                height: parent?.height ?? 0
                target: device
                silenced: Boolean(mute.shown)
                channel: "input" + (index + 1)
                source: root.sources[index]
            }
        }
        // qmllint enable unqualified
    }
    Row {
        id: main
        x: root.width - width
        height: root.height
        spacing: theme.dp(2)

        MixerStrip {
            height: main.height
            target: device
            silenced: Boolean(mute.shown)
            channel: "output1"
            source: 6
        }
        MixerStrip {
            height: main.height
            target: device
            silenced: Boolean(mute.shown)
            channel: "output2"
            source: 7
        }
    }
}
