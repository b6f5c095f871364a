import QtQuick
import TambleClient.Control 1.0

/*! A grid with numbers, and a line through handles that can be dragged, the outer ones up and down only. */
Item {
    id: root

    property var corners: [Qt.point(-60, -10), Qt.point(-30, 8), Qt.point(-10, -4), Qt.point(20, 4)]

    function move(index: int, x: real, y: real) {
        const moved = Array.from(root.corners)
        moved[index] = Qt.point(x, y)
        root.corners = moved
    }

    implicitHeight: theme.dp(288)

    RPlotGrid {
        id: grid
        x: theme.dp(40)
        y: theme.dp(8)
        width: root.width - x - theme.dp(16)
        height: root.height - y - theme.dp(24)
        yFrom: -12
        yTo: 12
        yStep: 3
    }
    RAxisNumbering {
        x: grid.x - width - theme.dp(4)
        y: grid.y
        height: grid.height
        orientation: Qt.Vertical
        from: grid.yFrom
        to: grid.yTo
        step: grid.yStep
        unit: "dB"
    }
    RAxisNumbering {
        x: grid.x
        y: grid.y + grid.height + theme.dp(4)
        width: grid.width
        from: grid.xFrom
        to: grid.xTo
        step: grid.xStep
        unit: "dBu"
    }
    RGraphPlotter {
        RStyleSet.typeName: "RBodeplotCurve"
        anchors.fill: grid
        values: root.corners.map(corner => Qt.point((corner.x - grid.xFrom) / (grid.xTo - grid.xFrom), (grid.yTo - corner.y) / (grid.yTo - grid.yFrom)))
        color: RStyleSet.props.color("aggregated-curve")
        lineWidth: theme.dp(2)
    }
    Item {
        anchors.fill: grid

        // qmllint disable unqualified
        Repeater {
            model: root.corners.length

            RDragHandler {
                id: handle

                required property int index

                xFrom: grid.xFrom
                xTo: grid.xTo
                yFrom: grid.yFrom
                yTo: grid.yTo
                xEnabled: handle.index > 0 && handle.index < root.corners.length - 1
                xValue: root.corners[handle.index].x
                yValue: root.corners[handle.index].y
                defaultY: 0
                label: qsTr("Point %1").arg(handle.index + 1)
                onDragged: (x, y) => root.move(handle.index, x, y)
            }
        }
        // qmllint enable unqualified
    }
}
