import QtQuick
import TambleClient.Control 1.0

/*! Any given curve in a frequency plot, over the ranges of the frame that it is placed in. */
RSimpleCurveTemplate {
    id: root

    RStyleSet.typeName: "RBodeplotCurve"

    /*! Whether the curve is in the selected colour. */
    property bool selected: false
    /*! Hides the curve. */
    property bool hidden: false
    /*! Width of the curve in pixels. */
    property real lineWidth: (root.selected ? 2.5 : 1) * RThemeValues.unit

    /*! Tells the ranges and scales, as far as it has properties of these names. */
    readonly property var frame: root.parent

    property color ssIndividualCurve: root.RStyleSet.props.individualCurve
    property color ssSelectedCurve: root.RStyleSet.props.selectedCurve

    anchors.fill: parent
    visible: !root.hidden
    xMinimum: root.frame?.xMinimum ?? 20
    xMaximum: root.frame?.xMaximum ?? 20000
    yMinimum: root.frame?.yMinimum ?? -18
    yMaximum: root.frame?.yMaximum ?? 18
    xAxisScale: root.frame?.xAxisScale ?? RBodeplotAxisScaleEnum.LOGARITHMIC
    yAxisScale: root.frame?.yAxisScale ?? RBodeplotAxisScaleEnum.LINEAR
    Accessible.ignored: true

    style: QtObject {
        readonly property color curveColor: root.selected ? root.ssSelectedCurve : root.ssIndividualCurve
        readonly property real curveLineWidth: root.lineWidth
    }
}
