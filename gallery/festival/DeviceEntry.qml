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

    readonly property RListView list: ListView.view as RListView
    readonly property color color: !root.list ? "transparent" : root.selected ? root.list.ssForegroundItemSelected : root.hovered ? root.list.ssForegroundItemHover : root.list.ssColor

    readonly property real stateWidth: theme.dp(104)
    readonly property real textWidth: Math.max(0, root.width - theme.dp(96) - root.stateWidth)

    width: root.list ? root.list.width : 0
    height: theme.dp(48)
    Accessible.role: Accessible.ListItem
    Accessible.name: qsTr("%1, %2, %3").arg(root.name).arg(root.location).arg(state.text)
    Accessible.selected: root.selected

    // Places that nothing has to be measured for: each text is laid out once.
    RIcon {
        id: picture
        x: theme.dp(16)
        y: (root.height - picture.height) / 2
        key: root.kind
        ssIconForeground: root.color
        opacity: root.online ? 1 : 0.5
    }
    RText {
        x: theme.dp(56)
        width: root.textWidth
        height: root.height / 2
        verticalAlignment: Text.AlignBottom
        text: root.name
        color: root.color
        elide: Text.ElideRight
        font.bold: true
    }
    RText {
        x: theme.dp(56)
        y: root.height / 2
        width: root.textWidth
        height: root.height / 2
        text: qsTr("%1  ·  %2").arg(root.location).arg(root.ipAddress)
        color: root.color
        elide: Text.ElideRight
        font.pixelSize: theme.fontSizeS
    }
    RText {
        id: state
        x: theme.dp(56) + root.textWidth
        width: root.stateWidth
        height: root.height
        horizontalAlignment: Text.AlignRight
        verticalAlignment: Text.AlignVCenter
        text: root.alarm || qsTr("%1 °C").arg(root.temperature.toFixed(1))
        color: root.color
        elide: Text.ElideRight
        font.bold: root.alarm.length > 0
    }
    RIcon {
        id: mark
        x: root.width - theme.dp(16) - mark.width
        y: (root.height - mark.height) / 2
        sizeClass: "XS"
        key: root.alarm.length === 0 ? "check" : root.online ? "temperature" : "offline"
        ssIconForeground: root.color
    }
}
