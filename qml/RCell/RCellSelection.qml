import QtQuick
import TambleClient.Control 1.0

/*! Frame and tint of a selected cell. */
Rectangle {
    id: root

    RStyleSet.typeName: "RSelectionRect"

    property color ssBackground: root.RStyleSet.props.background
    property color ssBorderColor: root.RStyleSet.props.border

    anchors.fill: parent
    color: Qt.rgba(root.ssBackground.r, root.ssBackground.g, root.ssBackground.b, 0.4 * root.ssBackground.a)
    border.width: RThemeValues.unit
    border.color: root.ssBorderColor
}
