import QtQuick
import TambleClient.Control 1.0

/*! Where a dragged section would be put in. */
Rectangle {
    id: root

    RStyleSet.typeName: "RSelectionRect"

    property color ssBorderColor: root.RStyleSet.props.border

    height: 2 * RThemeValues.unit
    color: root.ssBorderColor
    Accessible.ignored: true
}
