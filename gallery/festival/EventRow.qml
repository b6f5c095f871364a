import QtQuick
import TambleClient.Control 1.0

/*! An event: when it was, what kind it is, where it was, and what. */
Item {
    id: root

    required property string time
    required property string device
    required property string kind
    required property string text

    readonly property var icons: ({ alarm: "temperature", presence: "network", refusal: "error", network: "user", action: "edit" })
    readonly property bool narrow: root.width < theme.dp(560)

    width: ListView.view ? ListView.view.width : 0
    height: theme.dp(32)
    Accessible.role: Accessible.ListItem
    Accessible.name: qsTr("%1, %2 %3").arg(root.time).arg(root.device).arg(root.text)

    RText {
        id: clock
        anchors.left: parent.left
        width: theme.dp(72)
        height: root.height
        text: root.time
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
    }
    RIcon {
        id: mark
        anchors.left: clock.right
        anchors.verticalCenter: parent.verticalCenter
        sizeClass: "XS"
        key: root.icons[root.kind] ?? "info"
    }
    RText {
        id: place
        anchors.left: mark.left
        anchors.leftMargin: theme.dp(32)
        width: root.narrow ? 0 : theme.dp(160)
        height: root.height
        visible: !root.narrow
        text: root.device
        font.bold: true
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
    }
    RText {
        anchors.left: place.right
        anchors.leftMargin: root.narrow ? 0 : theme.dp(8)
        anchors.right: parent.right
        height: root.height
        text: root.narrow ? qsTr("%1 %2").arg(root.device).arg(root.text) : root.text
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
    }
}
