import QtQuick
import TambleClient.Control 1.0

/*! Text of a tab, and a dot after it while what the tab stands for is modified. */
Item {
    id: root

    required property RTabButtonBase tab
    /*! Whether the text stands in the middle, not where lines begin. */
    property bool centred: true

    property alias text: words

    readonly property real dotSpace: root.tab.modified ? 10 * RThemeValues.unit : 0
    readonly property real margin: 4 * RThemeValues.unit
    /*! What is left beside the text and the dot. */
    readonly property real rest: root.width - words.width - root.dotSpace
    readonly property real start: root.centred ? root.rest / 2 : root.margin

    implicitHeight: words.implicitHeight
    opacity: root.tab.enabled ? 1 : 0.5

    RText {
        id: words
        x: root.tab.mirrored ? root.width - root.start - words.width : root.start
        width: Math.min(words.implicitWidth, Math.max(0, root.width - root.dotSpace - 2 * root.margin))
        height: root.height
        text: root.tab.plainText
        color: root.tab.ssColor
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }
    Rectangle {
        x: root.tab.mirrored ? words.x - root.dotSpace : words.x + words.width + root.dotSpace - width
        y: (root.height - height) / 2
        width: 6 * RThemeValues.unit
        height: width
        radius: width / 2
        visible: root.tab.modified
        color: root.tab.ssColor
    }
}
