import QtQuick
import TambleClient.Control 1.0

/*! Straight lines and a curve in several widths. */
Column {
    id: root

    readonly property var widths: [0.5, 1, 1.5, 2, 4, 8]
    readonly property var wave: Array.from({ length: 97 }, (_, i) => Qt.point(i / 96, 0.5 - 0.42 * Math.sin(i * Math.PI / 24) * (1 - i / 120)))
    readonly property var corners: [Qt.point(0, 0.9), Qt.point(0.25, 0.1), Qt.point(0.3, 0.9), Qt.point(0.6, 0.5), Qt.point(0.62, 0.1), Qt.point(1, 0.1)]

    spacing: theme.dp(8)

    // qmllint disable unqualified
    Repeater {
        model: root.widths

        Row {
            id: line

            required property real modelData

            spacing: theme.dp(16)

            RText {
                anchors.verticalCenter: parent.verticalCenter
                width: theme.dp(48)
                text: qsTr("%1 px").arg(line.modelData)
                horizontalAlignment: Text.AlignRight
            }
            Repeater {
                model: 4

                Item {
                    id: cell

                    required property int index

                    RStyleSet.typeName: "RBodeplotCurve"
                    width: (root.width - theme.dp(48) - 4 * theme.dp(16)) / 4
                    height: theme.dp(44)

                    Loader {
                        anchors.fill: parent
                        sourceComponent: cell.index < 2 ? straight : graph
                    }
                    Component {
                        id: straight

                        RLinePlotter {
                            orientation: cell.index === 0 ? RLinePlotter.Horizontal : RLinePlotter.Vertical
                            values: [0.1, 0.4, 0.55, 0.9]
                            color: cell.RStyleSet.props.color("aggregated-curve")
                            lineWidth: theme.dp(line.modelData)
                        }
                    }
                    Component {
                        id: graph

                        RGraphPlotter {
                            values: cell.index === 2 ? root.wave : root.corners
                            color: cell.RStyleSet.props.color("aggregated-curve")
                            lineWidth: theme.dp(line.modelData)
                        }
                    }
                }
            }
        }
    }
    // qmllint enable unqualified
}
