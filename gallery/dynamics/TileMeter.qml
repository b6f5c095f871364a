import QtQuick
import TambleClient.Control 1.0
import "../levels/LevelText.js" as LevelText

/*! A meter between its caption and its number. */
Column {
    id: root

    required property string title
    /*! What the meter belongs to, for assistive tools. */
    required property string owner
    required property real value
    property real minimum: -60
    property real maximum: 20
    property bool split: false
    property real meterHeight: theme.dp(256)

    width: theme.dp(40)
    spacing: theme.dp(4)

    RText {
        width: root.width
        text: root.title
        horizontalAlignment: Text.AlignHCenter
    }
    RMeter {
        id: meter
        x: (root.width - width) / 2
        height: root.meterHeight
        paddingTop: 0
        paddingBottom: 0
        split: root.split
        value: root.value
        valueMin: root.minimum
        valueMax: root.maximum
        valueMinYellow: root.split ? root.minimum / 2 : root.maximum - 12
        valueMinRed: root.split ? root.minimum : root.maximum - 3
        valueMaxYellow: root.maximum / 2
        valueMaxRed: root.maximum
        // A gain moves as the processor does, both ways; the slow fall is for levels.
        currentValueDecreasePerSecond: meter.split ? 1e6 : 60
        Accessible.name: qsTr("%1, %2").arg(root.owner).arg(root.title)
    }
    RText {
        width: root.width
        text: LevelText.text(root.value)
        horizontalAlignment: Text.AlignHCenter
    }
}
