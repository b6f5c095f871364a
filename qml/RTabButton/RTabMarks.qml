import QtQuick
import TambleClient.Control 1.0

/*! What stands at the end of a tab: a dash while several devices differ, the badge, and the button that closes it. */
Row {
    id: root

    readonly property RTabButtonBase tab: root.parent as RTabButtonBase
    readonly property real gap: 4 * RThemeValues.unit

    x: root.tab.mirrored ? 0 : root.tab.width - width
    height: Math.min(root.tab.height, 32 * RThemeValues.unit)
    visible: root.tab.marked
    leftPadding: root.gap
    rightPadding: root.tab.closable ? 0 : 2 * root.gap
    spacing: root.gap
    layoutDirection: root.tab.mirrored ? Qt.RightToLeft : Qt.LeftToRight

    RIcon {
        height: root.height
        visible: !root.tab.consistent
        key: "dash"
        sizeClass: "XS"
        ssIconForeground: root.tab.ssColor
        opacity: root.tab.enabled ? 1 : 0.5
    }
    Rectangle {
        y: (root.height - height) / 2
        width: Math.max(height, badge.width + 2 * root.gap)
        height: 16 * RThemeValues.unit
        radius: height / 2
        visible: root.tab.badge.length > 0
        color: root.tab.ssColor
        opacity: root.tab.enabled ? 1 : 0.5

        RText {
            id: badge
            anchors.centerIn: parent
            width: Math.min(implicitWidth, 40 * RThemeValues.unit)
            text: root.tab.badge
            color: root.tab.ssBackground
            elide: Text.ElideRight
            font.pixelSize: RThemeValues.fontSizeXS
        }
    }
    RAbstractButtonTemplate {
        id: close
        width: 32 * RThemeValues.unit
        height: root.height
        visible: root.tab.closable
        hoverEnabled: RThemeValues.hoverEnabled
        focusPolicy: Qt.NoFocus
        text: qsTr("Close")
        onClicked: root.tab.requestClose()

        Rectangle {
            anchors.centerIn: parent
            width: 24 * RThemeValues.unit
            height: width
            radius: width / 2
            color: root.tab.ssColor
            opacity: close.down ? 0.4 : close.hovered ? 0.2 : 0
        }
        RIcon {
            anchors.centerIn: parent
            key: "close"
            sizeClass: "XS"
            ssIconForeground: root.tab.ssColor
            opacity: root.tab.enabled ? 1 : 0.5
        }
    }
}
