import QtQuick
import TambleClient.Control 1.0

/*! Ground and lines of a linear plot. A range without extent has no lines. */
Rectangle {
    id: root

    RStyleSet.typeName: "RBodeplotGrid"

    /*! The x axis from `xFrom` (left) to `xTo` (right), in its unit, with a line at each multiple of `xStep`. */
    property real xFrom: -60
    property real xTo: 20
    property real xStep: 10
    /*! The y axis from `yFrom` (bottom) to `yTo` (top), in its unit, with a line at each multiple of `yStep`. */
    property real yFrom: -60
    property real yTo: 20
    property real yStep: 10
    /*! Width of the lines in pixels. */
    property real lineWidth: RThemeValues.unit
    /*! Sets off the line at 0 of the y axis, when that is inside. */
    property bool zeroLine: true

    property color ssBackground: root.RStyleSet.props.background
    property color ssLineVertical: root.RStyleSet.props.lineVertical
    property color ssLineHorizontal: root.RStyleSet.props.lineHorizontal
    property color ssLineXaxis: root.RStyleSet.props.lineXaxis

    color: root.ssBackground
    Accessible.ignored: true

    RConstantGridLineCalculator {
        id: columns
        from: root.xFrom
        to: root.xTo
        step: root.xStep
    }
    RConstantGridLineCalculator {
        id: rows
        from: root.yFrom
        to: root.yTo
        step: root.yStep
    }
    RLineCalculator {
        id: zero
        from: root.yFrom
        to: root.yTo
        values: [0]
    }
    RLinePlotter {
        anchors.fill: parent
        orientation: RLinePlotter.Vertical
        values: columns.positions
        color: root.ssLineVertical
        lineWidth: root.lineWidth
    }
    RLinePlotter {
        anchors.fill: parent
        values: rows.positions
        color: root.ssLineHorizontal
        lineWidth: root.lineWidth
    }
    RLinePlotter {
        anchors.fill: parent
        visible: root.zeroLine
        values: zero.positions
        color: root.ssLineXaxis
        lineWidth: root.lineWidth
    }
}
