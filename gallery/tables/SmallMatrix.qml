import QtQuick
import QtQuick.Templates as T
import Gallery
import TambleClient.Control 1.0

/*! A matrix of 16 inputs and outputs, whose names stay in view. */
Item {
    id: root

    implicitHeight: view.implicitHeight + theme.dp(8)

    Flickable {
        id: view
        anchors.fill: parent
        anchors.rightMargin: theme.dp(8)
        anchors.bottomMargin: theme.dp(8)
        implicitHeight: Math.min(table.implicitHeight, theme.dp(33) * 12)
        contentWidth: table.implicitWidth
        contentHeight: table.implicitHeight
        boundsBehavior: Flickable.StopAtBounds
        clip: true

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

        RCellContainer {
            id: table
            title: qsTr("Matrix")
            selectionMode: RCellContainer.Rectangle
            gridProperties: RCellGridProperties {
                columnWidth: theme.dp(48)
                columnWidths: [theme.dp(64)]
                headerRows: 1
                headerColumns: 1
            }

            RCellLabel {
                text: qsTr("To")
            }
            // qmllint disable unqualified
            Repeater {
                model: 16

                RCellLabel {
                    required property int index

                    column: index + 1
                    text: qsTr("Out %1").arg(index + 1)
                }
            }
            Repeater {
                model: 16

                RCellLabel {
                    required property int index

                    row: index + 1
                    text: qsTr("In %1").arg(index + 1)
                }
            }
            Repeater {
                model: 256

                RCellButton {
                    id: crosspoint

                    required property int index

                    row: Math.floor(crosspoint.index / 16) + 1
                    column: crosspoint.index % 16 + 1
                    label: qsTr("Input %1 to output %2").arg(crosspoint.row).arg(crosspoint.column)
                    styleName: "crossPoint"
                    selectable: true
                    selected: crosspoint.row === crosspoint.column
                    active: crosspoint.row === table.currentRow || crosspoint.column === table.currentColumn
                }
            }
            // qmllint enable unqualified
        }
    }
}
