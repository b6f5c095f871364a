import QtQuick
import TambleClient.Control 1.0

/*! Table of cells on a common raster, with one current cell. Its children are the cells; a TableView shows thousands. */
RCellContainerBase {
    id: root

    RStyleSet.typeName: "RBodeplotGrid"

    /*! The cells, and what makes them, such as a Repeater. */
    default property alias cells: root.data

    /*! The raster of a container whose page names none. */
    readonly property RCellGridProperties ownGridProperties: RCellGridProperties {}

    ssBackground: root.RStyleSet.props.background
    ssLineHorizontal: root.RStyleSet.props.lineHorizontal
    ssLineVertical: root.RStyleSet.props.lineVertical

    gridProperties: root.ownGridProperties
    mirrored: root.LayoutMirroring.enabled

    RCellGround {
        table: root
        part: Qt.rect(0, 0, root.implicitWidth, root.implicitHeight)
        clip: false
    }
    // Behind headers that stay in view while others scroll below them.
    RCellGround {
        table: root
        part: root.headerRowsRect
        shift.y: root.headerShift.y
        z: 1
    }
    RCellGround {
        table: root
        part: root.headerColumnsRect
        shift.x: root.headerShift.x
        z: 1
    }
    RCellGround {
        table: root
        part: Qt.rect(root.headerColumnsRect.x, root.headerRowsRect.y, root.headerColumnsRect.width, root.headerRowsRect.height)
        shift: root.headerShift
        z: 3
    }
    RFocusRectangle {
        z: 5
        visible: root.activeFocus && (root.currentRow < 0 || root.currentColumn < 0)
    }
}
