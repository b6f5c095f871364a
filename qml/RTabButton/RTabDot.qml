import QtQuick
import TambleClient.Control 1.0

/*! The dot after the text of a tab, or after its icon where it has no text, while what the tab stands for is modified. */
Rectangle {
    id: root

    // Tabs of a page's own need not have both.
    readonly property var tab: root.parent
    readonly property Text words: root.tab.textControl ?? null
    readonly property Item shown: root.words ?? root.tab.iconItem ?? null
    readonly property real shownWidth: root.words ? root.words.contentWidth : root.shown ? root.shown.width : 0
    readonly property bool centred: !root.words || root.words.horizontalAlignment === Text.AlignHCenter
    /*! Where the text begins, or ends if it is read from right to left. */
    readonly property real margin: root.shown ? (root.centred ? 0.5 : root.tab.mirrored ? 1 : 0) * (root.shown.width - root.shownWidth) : 0
    readonly property real start: root.margin + (root.shown ? root.shown.x : 0) + (root.shown === root.tab.contentItem ? 0 : root.tab.contentItem.x)
    readonly property real gap: root.implicitWidth - width

    x: root.tab.mirrored ? root.start - root.implicitWidth : root.start + root.shownWidth + root.gap
    y: root.shown ? root.tab.contentItem.y + (root.shown === root.tab.contentItem ? 0 : root.shown.y) + (root.shown.height - height) / 2 : 0
    implicitWidth: 10 * RThemeValues.unit // with the room before it
    width: 6 * RThemeValues.unit
    height: width
    radius: width / 2
    visible: root.tab.modified
    color: root.tab.ssColor
    opacity: root.tab.enabled ? 1 : 0.5
}
