import QtQuick
import TambleClient.Control 1.0

/*! Bar beside what is scrolled, shown while there is more than fits. */
RScrollBarTemplate {
    id: root

    implicitWidth: root.vertical ? 8 * RThemeValues.unit : 0
    implicitHeight: root.vertical ? 0 : 8 * RThemeValues.unit
    minimumSize: 0.05
    visible: root.policy === RScrollBarTemplate.AlwaysOn || (root.policy === RScrollBarTemplate.AsNeeded && root.size < 1)

    contentItem: Rectangle { // qmllint disable deferred-property-id
        id: handle

        property color ssLineColor: handle.RStyleSet.props.line

        RStyleSet.typeName: "RTabButton"
        implicitWidth: 8 * RThemeValues.unit
        implicitHeight: 8 * RThemeValues.unit
        radius: 4 * RThemeValues.unit
        color: handle.ssLineColor
        opacity: root.pressed ? 1 : root.hovered ? 0.8 : 0.5
    }
}
