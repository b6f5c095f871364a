import QtQuick
import TambleClient.Control 1.0

/*! A meter in one of its forms, with its name above it or, standing, below it. */
Item {
    id: root

    required property string title
    required property real level
    property alias form: meter

    implicitWidth: theme.dp(48)
    implicitHeight: meter.horizontal ? theme.dp(36) : theme.dp(240)

    RMeter {
        id: meter
        x: meter.horizontal ? 0 : (root.width - width) / 2
        y: meter.horizontal ? root.height - height : 0
        width: meter.horizontal ? root.width : theme.dp(12)
        height: meter.horizontal ? theme.dp(12) : theme.dp(216)
        paddingTop: meter.clipIndicatorSupported ? width : 0
        paddingBottom: 0
        value: root.level
        valueMin: -60
        valueMax: 0
        unit: "dBFS"
        Accessible.name: meter.horizontal ? qsTr("%1, lying").arg(root.title) : qsTr("%1, standing").arg(root.title)
    }
    RText {
        anchors.bottom: meter.horizontal ? undefined : parent.bottom
        width: root.width
        text: root.title
        elide: Text.ElideRight
        font.pixelSize: theme.fontSizeS
        horizontalAlignment: meter.horizontal ? Text.AlignLeft : Text.AlignHCenter
    }
}
