import QtQuick
import TambleClient.Control 1.0

/*! Header of a flyout, which moves it: icon, title, what the page puts there, and the buttons. */
RFlyoutHandle {
    id: root

    required property RFlyoutWindowBase pane
    readonly property alias itemRow: row

    readonly property real gap: 8 * RThemeValues.unit
    readonly property real titleStart: root.gap + (root.pane.iconKey.length > 0 ? icon.width + root.gap : 0)

    property color ssBackground: root.RStyleSet.props.background
    property color ssColor: root.RStyleSet.props.isSet("foreground") ? root.RStyleSet.props.foreground : title.RStyleSet.props.foreground

    // Sheets without a look for the focus keep the plain one.
    RStyleSet.name: root.pane.activeFocus ? "header headerFocus" : "header"

    flyout: root.pane
    width: root.pane.width
    implicitWidth: Math.ceil(root.titleStart + title.implicitWidth + root.gap + row.width + row.anchors.rightMargin + buttons.width)
    implicitHeight: 32 * RThemeValues.unit

    Rectangle {
        anchors.fill: parent
        color: root.ssBackground
    }
    RIcon {
        id: icon
        anchors.left: parent.left
        anchors.leftMargin: root.gap
        anchors.verticalCenter: parent.verticalCenter
        visible: root.pane.iconKey.length > 0
        key: root.pane.iconKey
        ssIconForeground: root.ssColor
    }
    RText {
        id: title
        anchors.left: parent.left
        anchors.leftMargin: root.titleStart
        anchors.right: row.left
        anchors.rightMargin: root.gap
        height: parent.height
        text: root.pane.title
        color: root.ssColor
        font.pixelSize: RThemeValues.fontSizeL
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
    }
    Row {
        id: row
        anchors.right: buttons.left
        anchors.rightMargin: root.gap / 2
        anchors.verticalCenter: parent.verticalCenter
        spacing: RThemeValues.gap
    }
    Row {
        id: buttons
        anchors.right: parent.right
        height: parent.height

        RFlyoutButton {
            visible: root.pane.group.length > 0
            text: root.pane.pinned ? qsTr("unpin") : qsTr("pin")
            iconKey: root.pane.pinned ? "unpin" : "pin"
            ssColor: root.ssColor
            onClicked: root.pane.togglePin()
        }
        RFlyoutButton {
            visible: root.pane.closable
            text: qsTr("close")
            iconKey: "close"
            ssColor: root.ssColor
            onClicked: root.pane.close()
        }
    }
}
