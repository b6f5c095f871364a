import QtQuick
import TambleClient.Control 1.0

/*! The bar of a control's background, along the edge that the background names. */
Rectangle {
    id: root

    readonly property RControlBackground background: root.parent as RControlBackground
    // Asked by the few bars that show; a binding of every background would be read at each change of theme.
    readonly property var control: root.background.parent
    readonly property bool sideways: root.background.lineEdge === Qt.LeftEdge || root.background.lineEdge === Qt.RightEdge
    readonly property real thickness: 4 * RThemeValues.unit

    x: root.background.lineEdge === Qt.RightEdge ? root.background.width - root.width : root.sideways ? 0 : root.background.lineInset
    y: root.background.lineEdge === Qt.BottomEdge ? root.background.height - root.height : root.sideways ? root.background.lineInset : 0
    width: root.sideways ? root.thickness : root.background.width - 2 * root.background.lineInset
    height: root.sideways ? root.background.height - 2 * root.background.lineInset : root.thickness
    visible: root.background.lineVisible
    color: root.control?.ssLineColor ?? "transparent"
    Accessible.ignored: true
}
