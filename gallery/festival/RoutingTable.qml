import QtQuick
import QtQuick.Templates as T
import QtQml.Models
import Gallery
import TambleClient.Control 1.0

/*! The crosspoints of the matrix below the names of its outputs and beside those of its inputs, which stay in view. */
FocusScope {
    id: root

    readonly property real nameWidth: theme.dp(120)
    /*! All outputs fit in where there is room. */
    readonly property real cellSize: Math.max(theme.dp(56), Math.floor((root.width - root.nameWidth) / 16) - theme.dp(1))

    // Like the plan and the plots: Qt's table keeps its columns where they are, and only their names would change sides.
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true

    RoutingModel {
        id: routes
    }
    RCellGridProperties {
        id: raster
        columnWidth: root.cellSize
    }
    Item {
        id: outputs
        x: root.nameWidth
        width: root.width - x
        height: theme.dp(48)
        clip: true

        Row {
            x: -table.contentX
            spacing: table.columnSpacing

            // qmllint disable unqualified
            Repeater {
                model: routes.outputs

                RText {
                    required property string modelData

                    width: root.cellSize
                    height: outputs.height - theme.dp(4)
                    text: modelData
                    wrapMode: Text.Wrap
                    elide: Text.ElideRight
                    maximumLineCount: 2
                    horizontalAlignment: Text.AlignHCenter
                    verticalAlignment: Text.AlignBottom
                }
            }
            // qmllint enable unqualified
        }
    }
    Item {
        id: inputs
        y: outputs.height
        width: root.nameWidth
        height: root.height - y
        clip: true

        Column {
            y: -table.contentY
            spacing: table.rowSpacing

            // qmllint disable unqualified
            Repeater {
                model: routes.inputs

                RText {
                    required property string modelData

                    width: root.nameWidth - theme.dp(8)
                    height: theme.dp(32)
                    text: modelData
                    elide: Text.ElideRight
                    horizontalAlignment: Text.AlignRight
                    verticalAlignment: Text.AlignVCenter
                }
            }
            // qmllint enable unqualified
        }
    }
    TableView {
        id: table
        x: root.nameWidth
        y: outputs.height
        width: root.width - x
        height: root.height - y
        clip: true
        focus: true
        columnSpacing: theme.dp(1)
        rowSpacing: theme.dp(1)
        boundsBehavior: Flickable.StopAtBounds
        activeFocusOnTab: true
        Accessible.role: Accessible.Table
        Accessible.name: qsTr("Crosspoints")

        T.ScrollBar.vertical: ScrollHandle {}
        T.ScrollBar.horizontal: ScrollHandle {}

        model: routes
        selectionModel: ItemSelectionModel {
            model: routes
        }
        // qmllint disable unqualified
        delegate: RCellButton {
            id: crosspoint

            required property bool routed
            required property bool confirmed
            required property string refusal

            required row
            required column
            required current
            gridProperties: raster
            label: qsTr("%1 to %2").arg(routes.inputs[crosspoint.row]).arg(routes.outputs[crosspoint.column])
            styleName: "crossPoint"
            iconKey: crosspoint.refusal.length > 0 ? "error" : !crosspoint.confirmed ? "clock" : crosspoint.routed ? "check" : ""
            selectable: true
            selected: crosspoint.routed
            onSelectionEdited: selected => routes.route(crosspoint.row, crosspoint.column, selected)
        }
        // qmllint enable unqualified
    }
}
