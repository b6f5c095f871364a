import QtQuick
import TambleClient.Control 1.0

/*! The header of a pane as a button, with a chevron. */
RButtonBase {
    id: root

    required property RPaneBase pane
    readonly property var header: root.parent

    ssColor: root.header?.ssColor ?? "transparent"

    anchors.fill: parent
    hoverEnabled: RThemeValues.hoverEnabled
    focusPolicy: Qt.StrongFocus
    text: root.pane.title
    literalText: true
    Accessible.description: root.pane.collapsed ? qsTr("collapsed") : qsTr("expanded")
    onClicked: root.pane.toggle()

    contentItem: Item { // qmllint disable deferred-property-id
        RIcon {
            anchors.left: parent.left
            anchors.leftMargin: 8 * RThemeValues.unit
            anchors.verticalCenter: parent.verticalCenter
            key: root.mirrored ? "chevron-left" : "chevron-right"
            sizeClass: "XS"
            rotation: root.pane.collapsed ? 0 : root.mirrored ? -90 : 90
            ssIconForeground: root.ssColor
        }
    }
    background: RControlBackground { // qmllint disable deferred-property-id
        color: "transparent"
        focusVisible: root.activeFocus
    }
}
