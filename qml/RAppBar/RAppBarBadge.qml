import QtQuick
import TambleClient.Control 1.0

/*! The frame with a short text in the upper corner of a bar's button. */
Rectangle {
    id: root

    readonly property RBarButtonBase button: root.parent as RBarButtonBase
    readonly property real margin: 2 * RThemeValues.unit

    x: root.button.mirrored ? root.margin : root.button.width - root.width - root.margin
    y: root.margin
    width: Math.max(root.height, words.implicitWidth + 6 * RThemeValues.unit)
    height: 14 * RThemeValues.unit
    radius: root.height / 2
    visible: root.button.badge.length > 0
    color: root.button.ssBackground
    border.width: RThemeValues.unit
    border.color: root.button.ssColor

    RText {
        id: words
        anchors.centerIn: parent
        text: root.button.shortBadge
        color: root.button.ssColor
        font.pixelSize: RThemeValues.fontSizeXS
    }
}
