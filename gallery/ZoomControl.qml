import QtQuick
import TambleClient.Control 1.0

/*! Size of the interface, 50 % to 300 %. */
RButtonRow {
    id: root

    readonly property int percent: Math.round(theme.dp(100))

    function step(percent: int) {
        theme.setDpZoomFactor(Math.max(50, Math.min(300, root.percent + percent)) / 100)
    }

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Zoom")

    RButtonIcon {
        width: theme.dp(32)
        enabled: root.percent > 50
        label: qsTr("Smaller")
        iconItem.key: "minus"
        iconItem.sizeClass: "XS"
        onClicked: root.step(-10)
    }
    RButton {
        width: theme.dp(56)
        text: qsTr("%1 %").arg(root.percent)
        onClicked: theme.setDpZoomFactor(0)
    }
    RButtonIcon {
        width: theme.dp(32)
        enabled: root.percent < 300
        label: qsTr("Larger")
        iconItem.key: "plus"
        iconItem.sizeClass: "XS"
        onClicked: root.step(10)
    }
}
