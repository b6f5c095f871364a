import QtQuick
import TambleClient.Control 1.0

/*! What an entry of a menu looks like: check mark, icon, text, shortcut, and a chevron where it opens a sub-menu. */
Rectangle {
    id: root

    required property RMenuBase menu
    // A RMenuItemTemplate, some of whose properties tools do not know.
    required property var entry
    property string shortcutText: root.entry.action ? root.menu.shownShortcut(root.entry.action.shortcut) : ""

    readonly property bool selected: root.menu.selectedEntry === root.entry
    readonly property color ssColor: root.entry.highlighted ? root.menu.ssForegroundItemHover : root.selected ? root.menu.ssForegroundItemSelected : root.menu.ssForegroundItem

    readonly property real gap: 8 * RThemeValues.unit
    readonly property real checkSpace: root.menu.hasChecks ? 16 * RThemeValues.unit + root.gap : 0
    readonly property real iconSpace: root.menu.hasIcons ? 24 * RThemeValues.unit + root.gap : 0
    readonly property real textStart: 2 * root.gap + root.checkSpace + root.iconSpace
    readonly property real endSpace: 16 * RThemeValues.unit + root.gap

    implicitWidth: Math.ceil(root.textStart + words.implicitWidth + (root.shortcutText.length > 0 ? 3 * root.gap + shortcut.implicitWidth : 0) + root.endSpace)
    implicitHeight: 32 * RThemeValues.unit
    color: root.entry.highlighted ? root.menu.ssBackgroundItemHover : root.selected ? root.menu.ssBackgroundItemSelected : root.menu.ssBackgroundItem

    Item {
        id: body
        anchors.fill: parent
        opacity: root.entry.enabled ? 1 : 0.5

        // Selected entries may look like the one under the pointer otherwise.
        Rectangle {
            anchors.left: parent.left
            anchors.leftMargin: root.gap / 2
            anchors.verticalCenter: parent.verticalCenter
            width: 4 * RThemeValues.unit
            height: parent.height - root.gap
            visible: root.selected
            color: root.ssColor
        }
        RIcon {
            anchors.left: parent.left
            anchors.leftMargin: 2 * root.gap
            anchors.verticalCenter: parent.verticalCenter
            visible: root.entry.checked
            key: "check"
            sizeClass: "XS"
            ssIconForeground: root.ssColor
        }
        RIcon {
            anchors.left: parent.left
            anchors.leftMargin: 2 * root.gap + root.checkSpace
            anchors.verticalCenter: parent.verticalCenter
            key: root.entry.icon.name
            ssIconForeground: root.ssColor
        }
        RText {
            id: words
            anchors.left: parent.left
            anchors.right: shortcut.left
            anchors.leftMargin: root.textStart
            height: parent.height
            text: root.menu.plainText(root.entry.text)
            color: root.ssColor
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignLeft
            verticalAlignment: Text.AlignVCenter
        }
        RText {
            id: shortcut
            anchors.right: parent.right
            anchors.rightMargin: root.endSpace
            height: parent.height
            text: root.shortcutText
            color: root.ssColor
            verticalAlignment: Text.AlignVCenter
        }
        RIcon {
            anchors.right: parent.right
            anchors.rightMargin: root.gap / 2
            anchors.verticalCenter: parent.verticalCenter
            visible: root.entry.subMenu !== null
            key: root.entry.mirrored ? "chevron-left" : "chevron-right"
            sizeClass: "XS"
            ssIconForeground: root.ssColor
        }
    }
}
