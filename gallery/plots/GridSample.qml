import QtQuick
import TambleClient.Control 1.0

/*! A grid with finer and stronger lines both ways, upright ones evenly spaced or `logarithmic`, and a frame. */
Rectangle {
    id: root

    RStyleSet.typeName: "RBodeplotGrid"

    property bool logarithmic: false
    property real majorLineWidth: theme.dp(1)

    readonly property real first: root.logarithmic ? 20 : 0
    readonly property real last: root.logarithmic ? 20000 : 10
    readonly property int scale: root.logarithmic ? RBodeplotAxisScaleEnum.LOGARITHMIC : RBodeplotAxisScaleEnum.LINEAR

    implicitHeight: theme.dp(120)
    color: root.RStyleSet.props.background
    Accessible.ignored: true

    RConstantGridLineCalculator {
        id: columns
        from: root.first
        to: root.last
        step: 0.5
        scale: root.scale
    }
    RLineCalculator {
        id: majorColumns
        from: root.first
        to: root.last
        scale: root.scale
        values: root.logarithmic ? [100, 1000, 10000] : [2, 4, 6, 8]
    }
    RConstantGridLineCalculator {
        id: rows
        from: -12
        to: 12
        step: 3
    }
    RGrid {
        anchors.fill: parent
        frameVisible: true
        horizontal: RGridLayout {
            positions: rows.positions
            majorPositions: [0.5]
            color: root.RStyleSet.props.lineHorizontal
            majorColor: root.RStyleSet.props.lineXaxis
            lineWidth: theme.dp(1)
            majorLineWidth: root.majorLineWidth
        }
        vertical: RGridLayout {
            positions: columns.positions
            majorPositions: majorColumns.positions
            color: root.RStyleSet.props.lineVertical
            majorColor: root.RStyleSet.props.lineXaxis
            lineWidth: theme.dp(1)
            majorLineWidth: root.majorLineWidth
        }
    }
}
