import QtQuick
import Gallery
import TambleClient.Control 1.0
import "LevelText.js" as LevelText

/*! Meters of one channel: the peak with its clip indicator, beside it a thin one of the RMS value, which stands below
    in numbers too. The clip indicator stays lit until `reset`. */
Item {
    id: root

    required property ChannelLevel level

    property bool clipped: false
    /*! From this peak level on the channel counts as clipped, in dB below full scale. */
    readonly property real clipLevel: -0.5

    function reset() {
        root.clipped = false
    }

    implicitWidth: theme.dp(64)
    implicitHeight: meter.height + number.height + name.height + theme.dp(4)
    Accessible.role: Accessible.Grouping
    Accessible.name: root.level.name

    // qmllint disable unqualified
    Connections {
        target: root.level
        function onLevelChanged() {
            if (root.level.peak >= root.clipLevel)
                root.clipped = true
        }
    }
    // qmllint enable unqualified
    RMeter {
        id: meter
        x: (root.width - width) / 2 - theme.dp(4)
        height: theme.dp(280)
        paddingTop: theme.dp(24)
        paddingBottom: theme.dp(8)
        value: root.level.peak
        valueMin: -60
        valueMax: 0
        valueMinYellow: -12
        valueMinRed: -3
        unit: "dBFS"
        clipIndicatorSupported: true
        clipIndicatorActive: root.clipped
        Accessible.name: qsTr("%1, peak").arg(root.level.name)
    }
    RMeter {
        anchors.left: meter.right
        anchors.leftMargin: theme.dp(4)
        width: theme.dp(4)
        height: meter.height
        paddingTop: meter.paddingTop
        paddingBottom: meter.paddingBottom
        value: root.level.rms
        valueMin: meter.valueMin
        valueMax: meter.valueMax
        valueMinYellow: meter.valueMinYellow
        valueMinRed: meter.valueMinRed
        unit: "dBFS"
        Accessible.name: qsTr("%1, RMS").arg(root.level.name)
    }
    RText {
        id: number
        y: meter.height
        width: root.width
        text: LevelText.text(root.level.rms)
        horizontalAlignment: Text.AlignHCenter
    }
    RText {
        id: name
        y: number.y + number.height + theme.dp(4)
        width: root.width
        text: root.level.name
        elide: Text.ElideRight
        font.pixelSize: theme.fontSizeS
        horizontalAlignment: Text.AlignHCenter
    }
}
