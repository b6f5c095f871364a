import QtQuick
import TambleClient.Control 1.0

/*! A fader of one law beside the meter of the level behind it. The marker on the meter stands where the handle does. */
Column {
    id: root

    required property string title
    /*! Level before the fader, in dB. */
    required property real level
    property alias value: fader.value
    property alias exponential: fader.exponential
    property alias table: fader.jtSpread

    spacing: theme.dp(4)

    Row {
        spacing: theme.dp(8)

        RFader {
            id: fader
            label: root.title
        }
        RMeter {
            // As long as the way of the fader's handle.
            y: fader.travelInset
            height: fader.height - 2 * fader.travelInset
            paddingTop: 0
            paddingBottom: 0
            value: root.level + fader.value
            valueMin: fader.from
            valueMax: fader.to
            valueMinYellow: -12
            valueMinRed: -3
            faderIndicatorActive: true
            faderIndicatorValue: fader.value
            faderIndicatorExponential: fader.exponential
            faderIndicatorJtSpread: fader.jtSpread
            Accessible.name: qsTr("%1, level").arg(root.title)
        }
    }
    RText {
        width: parent.width
        text: root.title
        horizontalAlignment: Text.AlignHCenter
    }
    RText {
        width: parent.width
        text: fader.converter.toText(fader.value)
        font.pixelSize: theme.fontSizeS
        horizontalAlignment: Text.AlignHCenter
    }
}
