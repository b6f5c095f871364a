import QtQuick
import QtQuick.Templates as T
import QtQml.Models
import Gallery
import TambleClient.Control 1.0

/*! A matrix of 64 inputs and outputs. The view makes the crosspoints that are seen and uses them again. */
Item {
    id: root

    implicitHeight: view.implicitHeight + theme.dp(8)

    TableView {
        id: view
        anchors.fill: parent
        anchors.rightMargin: theme.dp(8)
        anchors.bottomMargin: theme.dp(8)
        implicitHeight: theme.dp(33) * 12
        clip: true
        columnSpacing: raster.spacing
        rowSpacing: raster.spacing
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        Accessible.role: Accessible.Table
        Accessible.name: qsTr("Large matrix")

        // Beside the cells, not over them.
        T.ScrollBar.vertical: ScrollHandle {
            parent: root
            anchors.right: parent.right
            height: view.height
        }
        T.ScrollBar.horizontal: ScrollHandle {
            parent: root
            anchors.bottom: parent.bottom
            x: view.x
            width: view.width
        }

        model: CrosspointModel {
            size: 64
        }
        selectionModel: ItemSelectionModel {
            model: view.model
        }
        // qmllint disable unqualified
        delegate: RCellButton {
            id: crosspoint

            required property bool routed
            required property bool hasSignal

            required row
            required column
            required current
            gridProperties: raster
            label: qsTr("Input %1 to output %2").arg(crosspoint.row + 1).arg(crosspoint.column + 1)
            styleName: "crossPoint"
            selectable: true
            selected: crosspoint.routed
            active: crosspoint.hasSignal
            iconKey: crosspoint.routed && crosspoint.hasSignal ? "loudspeaker" : ""
            onSelectionEdited: selected => view.model.route(crosspoint.row, crosspoint.column, selected)
        }
        // qmllint enable unqualified

        // Shows between the crosspoints.
        Surface {
            z: -1
            width: view.contentWidth
            height: view.contentHeight
            RStyleSet.typeName: "RBodeplotGrid"
        }
        RCellGridProperties {
            id: raster
            columnWidth: theme.dp(32)
        }
    }
}
