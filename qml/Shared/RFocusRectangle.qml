import QtQuick
import TambleClient.Control 1.0

/*! Frame around the item that has the keyboard focus. */
Rectangle {
    id: root

    property color ssBorderColor: root.RStyleSet.props.border

    anchors.fill: parent
    color: "transparent"
    border.width: RThemeValues.unit
    border.color: root.ssBorderColor
    Accessible.ignored: true
}
