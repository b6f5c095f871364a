import QtQuick
import QtQuick.Templates as T
import TambleClient.Control 1.0

/*! Scroll bar that shows only while there is something to scroll. */
T.ScrollBar {
    id: root

    RStyleSet.typeName: "RTabButton"

    property color ssLineColor: root.RStyleSet.props.line

    implicitWidth: 8 * RThemeValues.unit
    implicitHeight: 8 * RThemeValues.unit
    padding: RThemeValues.unit
    minimumSize: 0.05
    visible: root.size < 1

    contentItem: Rectangle {
        radius: 3 * RThemeValues.unit
        color: root.ssLineColor
    }
}
