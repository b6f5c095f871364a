import QtQuick
import TambleClient.Control 1.0

/*! A device in a list, which tells the row whether it is highlighted. */
Item {
    id: root

    required property string name
    required property string location
    required property bool online
    property bool selected: false
    property bool hovered: false

    readonly property RListView list: ListView.view as RListView
    readonly property color textColor: !root.list ? "transparent" : root.selected ? root.list.ssForegroundItemSelected : root.hovered ? root.list.ssForegroundItemHover : root.list.ssColor

    width: root.list?.width ?? 0
    height: theme.dp(48)
    Accessible.role: Accessible.ListItem
    Accessible.name: qsTr("%1, %2").arg(root.name).arg(place.text)

    Column {
        anchors.verticalCenter: parent.verticalCenter
        x: theme.dp(16)
        width: parent.width - theme.dp(32)

        RText {
            width: parent.width
            text: root.name
            color: root.textColor
            elide: Text.ElideRight
        }
        RText {
            id: place
            width: parent.width
            text: root.online ? root.location : qsTr("offline")
            color: root.textColor
            elide: Text.ElideRight
            font.pixelSize: theme.fontSizeXS
        }
    }
}
