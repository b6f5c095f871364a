import QtQuick
import TambleClient.Control 1.0

/*! The sign in the box of a check box: selected, or mixed. */
RTintedImage {
    id: root

    readonly property var control: root.parent
    readonly property real margin: (root.control.boxSize - root.width) / 2

    objectName: "icon"
    x: root.control.boxAtRightEdge ? root.control.width - root.width - root.margin : root.margin
    y: (root.control.height - root.height) / 2
    width: 16 * RThemeValues.unit
    height: root.width
    source: !root.control.consistent ? "qrc:/icons/dash_16x16.png" : "qrc:/icons/check_16x16.png"
    visible: root.control.checkState !== Qt.Unchecked
    tint: root.control.ssColor
    enlargement: RThemeValues.unit
}
