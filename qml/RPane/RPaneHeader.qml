import QtQuick
import TambleClient.Control 1.0

/*! Header of a pane: icon, title, and what the page puts at its end. */
Item {
    id: root

    required property RPaneBase pane
    readonly property alias itemRow: row

    readonly property real gap: 8 * RThemeValues.unit
    readonly property real edge: root.pane.borderShown ? RThemeValues.unit : 0
    readonly property real iconStart: root.pane.collapsible ? 32 * RThemeValues.unit : root.gap
    readonly property real titleStart: root.iconStart + (root.pane.iconKey.length > 0 ? icon.width + root.gap : 0)

    property color ssBackground: root.RStyleSet.props.background
    property color ssColor: root.RStyleSet.props.isSet("foreground") ? root.RStyleSet.props.foreground : title.RStyleSet.props.foreground

    RStyleSet.name: "header"

    width: root.pane.width
    implicitWidth: Math.ceil(root.titleStart + title.implicitWidth + root.gap + row.width + row.anchors.rightMargin)
    implicitHeight: (root.pane.nested ? 24 : 32) * RThemeValues.unit

    Rectangle {
        anchors.fill: parent
        anchors.margins: root.edge
        anchors.bottomMargin: root.pane.collapsed ? root.edge : 0
        color: root.ssBackground
    }
    RIcon {
        id: icon
        anchors.left: parent.left
        anchors.leftMargin: root.iconStart
        anchors.verticalCenter: parent.verticalCenter
        visible: root.pane.iconKey.length > 0
        key: root.pane.iconKey
        sizeClass: root.pane.nested ? "XS" : "S"
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
        font.pixelSize: root.pane.nested ? RThemeValues.fontSizeM : RThemeValues.fontSizeL
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
    }
    Row {
        id: row
        anchors.right: parent.right
        anchors.rightMargin: root.gap / 2
        anchors.verticalCenter: parent.verticalCenter
        z: 1
        spacing: RThemeValues.gap
    }
}
