import QtQuick
import TambleClient.Control 1.0

/*! Grid lines of a frequency plot in the colours of the style. */
RBodeplotGridTemplate {
    id: root

    RStyleSet.typeName: "RBodeplotGrid"

    property color ssBackground: root.RStyleSet.props.background
    property color ssLineVertical: root.RStyleSet.props.lineVertical
    property color ssLineHorizontal: root.RStyleSet.props.lineHorizontal
    property color ssLineXaxis: root.RStyleSet.props.lineXaxis

    Accessible.ignored: true

    // The item follows the changes of these values.
    style: QtObject {
        readonly property real lineWidthVertical: RThemeValues.unit
        readonly property color lineColorVertical: root.ssLineVertical
        readonly property real lineWidthHorizontal: RThemeValues.unit
        readonly property color lineColorHorizontal: root.ssLineHorizontal
        readonly property real lineWidthXAchsis: 2 * RThemeValues.unit
        readonly property color lineColorXAchsis: root.ssLineXaxis
    }
}
