import QtQuick
import QtQuick.Templates as T
import Gallery
import TambleClient.Control 1.0

/*! The channels of a device, with parameters that can be edited. */
Item {
    id: root

    property alias table: cells
    readonly property var kinds: [qsTr("Microphone"), qsTr("Line"), qsTr("Digital")]

    implicitHeight: view.implicitHeight + theme.dp(8)

    Flickable {
        id: view
        anchors.fill: parent
        anchors.rightMargin: theme.dp(8)
        anchors.bottomMargin: theme.dp(8)
        implicitHeight: theme.dp(33) * 8
        contentWidth: cells.implicitWidth
        contentHeight: cells.implicitHeight
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

        ListModel {
            id: channels
            Component.onCompleted: {
                for (let i = 0; i < 16; ++i)
                    channels.append({
                        name: qsTr("Channel %1").arg(i + 1),
                        input: i % 3,
                        gain: -3 * (i % 5),
                        phantom: i % 4 === 0
                    })
            }
        }
        RCellContainer {
            id: cells
            title: qsTr("Channels")
            selectionMode: RCellContainer.Rectangle
            gridProperties: RCellGridProperties {
                columnWidth: theme.dp(96)
                columnWidths: [theme.dp(48), theme.dp(144), theme.dp(112), theme.dp(128)]
                headerRows: 1
                headerColumns: 1
            }

            RCellLabel {
                text: qsTr("No.")
            }
            RCellLabel {
                column: 1
                text: qsTr("Name")
            }
            RCellLabel {
                column: 2
                text: qsTr("Input")
            }
            RCellLabel {
                column: 3
                text: qsTr("Gain")
            }
            RCellLabel {
                column: 4
                text: qsTr("Phantom")
            }
            RCellLabel {
                column: 5
                columnSpan: 2
                text: qsTr("Pair, and a note about it")
            }
            // qmllint disable unqualified
            Repeater {
                model: channels

                RCellLabel {
                    required property int index

                    row: index + 1
                    text: index + 1
                }
            }
            Repeater {
                model: channels

                RCellTextField {
                    id: name

                    required property int index
                    required property var model

                    row: name.index + 1
                    column: 1
                    label: qsTr("Name of channel %1").arg(name.row)
                    value: name.model.name
                    required: true
                    onValueEdited: value => name.model.name = value
                }
            }
            Repeater {
                model: channels

                RCellComboBox {
                    id: choice

                    required property int index
                    required property int input

                    row: choice.index + 1
                    column: 2
                    label: qsTr("Input of channel %1").arg(choice.row)
                    model: root.kinds
                    currentIndex: choice.input
                    onValueEdited: value => channels.setProperty(choice.index, "input", root.kinds.indexOf(value))
                }
            }
            Repeater {
                model: channels

                RCellSpinBox {
                    id: gain

                    required property int index
                    required property var model

                    row: gain.index + 1
                    column: 3
                    label: qsTr("Gain of channel %1 in dB").arg(gain.row)
                    from: -80
                    to: 10
                    stepSize: 0.5
                    suffix: qsTr("dB")
                    value: gain.model.gain
                    onValueEdited: value => gain.model.gain = value
                }
            }
            Repeater {
                model: channels

                RCellButton {
                    id: phantom

                    required property int index
                    required property var model

                    row: phantom.index + 1
                    column: 4
                    label: qsTr("Phantom power of channel %1").arg(phantom.row)
                    text: qsTr("48 V")
                    styleName: "red"
                    selectable: true
                    selected: phantom.model.phantom
                    enabled: phantom.index % 3 === 0
                    onSelectionEdited: selected => phantom.model.phantom = selected
                }
            }
            Repeater {
                model: 8

                RCellText {
                    id: pair

                    required property int index

                    row: 2 * pair.index + 1
                    column: 5
                    rowSpan: 2
                    columnSpan: 2
                    text: qsTr("Pair %1: %2").arg(pair.index + 1).arg(root.kinds[pair.index % 3])
                }
            }
            // qmllint enable unqualified
        }
    }
}
