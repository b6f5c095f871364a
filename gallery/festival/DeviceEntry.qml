import QtQuick
import TambleClient.Control 1.0

/*! A device in the list: its kind, its name and place, and how it is. */
Item {
    id: root

    required property int device
    required property string kind
    required property string name
    required property string location
    required property string ipAddress
    required property double temperature
    required property bool online
    required property string alarm

    /*! What the list tells its rows. */
    property bool selected: false
    property bool hovered: false

    /*! Pixels per density-independent unit, asked once for all: calls are not compiled. */
    readonly property real unit: theme.dp(1)
    readonly property RListView list: ListView.view as RListView
    readonly property color color: !root.list ? "transparent" : root.selected ? root.list.ssForegroundItemSelected : root.hovered ? root.list.ssForegroundItemHover : root.list.ssColor

    width: root.list ? root.list.width : 0
    height: 48 * root.unit
    Accessible.role: Accessible.ListItem
    Accessible.name: qsTr("%1, %2, %3").arg(root.name).arg(root.location).arg(state.text)
    Accessible.selected: root.selected

    RIcon {
        anchors.left: parent.left
        anchors.leftMargin: 16 * root.unit
        anchors.verticalCenter: parent.verticalCenter
        key: root.kind
        ssIconForeground: root.color
        opacity: root.online ? 1 : 0.5
    }
    Column {
        anchors.left: parent.left
        anchors.leftMargin: 56 * root.unit
        anchors.right: state.left
        anchors.rightMargin: 8 * root.unit
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2 * root.unit

        RText {
            width: parent.width
            text: root.name
            color: root.color
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            font.bold: true
        }
        RText {
            width: parent.width
            text: qsTr("%1  ·  %2").arg(root.location).arg(root.ipAddress)
            color: root.color
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            font.pixelSize: theme.fontSizeS
        }
    }
    RText {
        id: state
        anchors.right: mark.left
        anchors.rightMargin: 8 * root.unit
        anchors.verticalCenter: parent.verticalCenter
        text: root.alarm || qsTr("%1 °C").arg(root.temperature.toFixed(1))
        color: root.color
        font.bold: root.alarm.length > 0
    }
    RIcon {
        id: mark
        anchors.right: parent.right
        anchors.rightMargin: 16 * root.unit
        anchors.verticalCenter: parent.verticalCenter
        sizeClass: "XS"
        key: root.alarm.length === 0 ? "check" : root.online ? "temperature" : "offline"
        ssIconForeground: root.color
    }
}
