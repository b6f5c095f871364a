import QtQuick
import TambleClient.Control 1.0

/*! A fader that only shows, and a meter of the same height whose scale it shares, between axes of that scale. */
Row {
    id: root

    /*! Level in dB. */
    required property real level

    spacing: theme.dp(16)

    RFader {
        id: fader
        label: qsTr("Read-only")
        value: -12
        readOnly: true
    }
    Item {
        width: theme.dp(28)
        height: fader.height

        RAxis {
            anchors.right: parent.right
            y: fader.travelInset
            width: theme.dp(4)
            height: fader.height - 2 * fader.travelInset
            leftSided: true
            minValue: fader.from
            maxValue: fader.to
            tickCount: 10
        }
    }
    RMeter {
        height: fader.height
        value: root.level
        valueMin: fader.from
        valueMax: fader.to
        valueMinYellow: -12
        valueMinRed: -3
        clipIndicatorSupported: true
        Accessible.name: qsTr("Level beside the read-only fader")
    }
    RAxis {
        y: fader.travelInset
        height: fader.height - 2 * fader.travelInset
        minValue: fader.from
        maxValue: fader.to
        tickCount: 19
    }
}
