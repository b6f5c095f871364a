import QtQuick
import TambleClient.Control 1.0

/*! Frame around a dragged picture. */
Rectangle {
    id: root

    RStyleSet.typeName: "RSelectionRect"

    property color ssBorderColor: root.RStyleSet.props.border

    anchors.fill: parent
    color: "transparent"
    border.width: RThemeValues.unit
    border.color: root.ssBorderColor
    Accessible.ignored: true
}
