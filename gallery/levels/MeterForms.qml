import QtQuick
import TambleClient.Control 1.0

/*! Meters standing and lying: plain, from the other end, split at 0 dB, with a marker and with a clip indicator. */
Row {
    id: root

    /*! Levels in dB: of a channel, and between the two of a pair. */
    required property real level
    required property real difference

    spacing: theme.dp(8)

    FormMeter {
        title: qsTr("Plain")
        level: root.level
    }
    FormMeter {
        title: qsTr("Reverse")
        level: root.level
        form.reverse: true
    }
    FormMeter {
        title: qsTr("Split")
        level: root.difference
        form.split: true
        form.unit: "dB"
        form.valueMin: -12
        form.valueMinYellow: -6
        form.valueMinRed: -9
        form.valueMax: 12
        form.valueMaxYellow: 6
        form.valueMaxRed: 9
    }
    FormMeter {
        title: qsTr("Marker")
        level: root.level
        form.faderIndicatorActive: true
        form.faderIndicatorValue: -20
    }
    FormMeter {
        title: qsTr("Clipped")
        level: root.level
        form.clipIndicatorSupported: true
        form.clipIndicatorActive: true
    }
    Column {
        width: root.width - x
        spacing: theme.dp(24)

        FormMeter {
            width: parent.width
            title: qsTr("Plain")
            level: root.level
            form.horizontal: true
        }
        FormMeter {
            width: parent.width
            title: qsTr("Reverse")
            level: root.level
            form.horizontal: true
            form.reverse: true
        }
        FormMeter {
            width: parent.width
            title: qsTr("Marker, exponential")
            level: root.level
            form.horizontal: true
            form.faderIndicatorActive: true
            form.faderIndicatorExponential: true
            form.faderIndicatorValue: -12
        }
    }
}
