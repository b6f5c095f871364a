import QtQuick
import TambleClient.Control 1.0

/*! A part of what is behind the cells of a table: its ground and the lines between cells. */
Item {
    id: root

    required property RCellContainerBase table
    /*! Where the part is shown. */
    property rect part
    /*! How far the part is from its place in the table. */
    property point shift

    x: root.part.x
    y: root.part.y
    width: root.part.width
    height: root.part.height
    visible: root.width > 0 && root.height > 0
    clip: true

    Rectangle {
        x: root.shift.x - root.x
        y: root.shift.y - root.y
        width: root.table.implicitWidth
        height: root.table.implicitHeight
        color: root.table.ssBackground

        RLinePlotter {
            anchors.fill: parent
            orientation: RLinePlotter.Horizontal
            values: root.table.rowLines
            color: root.table.ssLineHorizontal
            lineWidth: root.table.gridProperties ? root.table.gridProperties.lineWidth : 0
        }
        RLinePlotter {
            anchors.fill: parent
            orientation: RLinePlotter.Vertical
            values: root.table.columnLines
            color: root.table.ssLineVertical
            lineWidth: root.table.gridProperties ? root.table.gridProperties.lineWidth : 0
        }
    }
}
