import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! A page of a client with tools that open flyouts. */
RScreen {
    id: root

    title: qsTr("Channels")
    height: theme.dp(480)
    clip: true

    RFlyoutToolbar {
        id: tools
        x: theme.dp(8)
        y: theme.dp(8)
        movable: true

        RFlyoutToolbarItem {
            iconKey: "eq"
            label: qsTr("Equalizer")
            flyout: equalizer
        }
        RFlyoutToolbarItem {
            iconKey: "gate"
            label: qsTr("Gate")
            flyout: gate
        }
        RFlyoutToolbarItem {
            iconKey: "compressor"
            label: qsTr("Compressor")
            flyout: compressor
        }
        RFlyoutToolbarItem {
            iconKey: "more"
            label: qsTr("More")
            flyout: moreMenu

            RPopupMenu {
                id: moreMenu
                model: [{ text: qsTr("Copy"), iconKey: "copy" }, { text: qsTr("Paste"), iconKey: "paste" }]
            }
        }
    }
    RFlyoutToolbar {
        x: theme.dp(80)
        y: theme.dp(8)
        orientation: Qt.Horizontal
        exclusive: true

        // qmllint disable unqualified
        Repeater {
            model: [["pointer", qsTr("Select")], ["hand", qsTr("Move")], ["zoom-in", qsTr("Zoom")]]

            RFlyoutToolbarItem {
                required property int index
                required property var modelData

                iconKey: modelData[0]
                text: modelData[1]
                selectable: true
                selected: index === 0
            }
        }
        // qmllint enable unqualified
    }
    RFlyoutWindow {
        id: equalizer
        title: qsTr("Equalizer")
        iconKey: "eq"
        group: "channel"
        resizable: true
        rememberKey: "equalizer"
        headerContent: RButton {
            implicitWidth: theme.dp(64)
            implicitHeight: theme.dp(24)
            text: qsTr("Bypass")
            selectable: true
        }
        contentComponent: Component {
            RBodeplot {
                implicitWidth: theme.dp(320)
                implicitHeight: theme.dp(200)
                anchors.fill: parent

                RBodeplotCurve {
                    calculationItems: [
                        RBodeplotEqFilter {
                            freq: 1000
                            gain: 6
                            quality: 1.4
                        }
                    ]
                }
            }
        }
    }
    RFlyoutWindow {
        id: gate
        title: qsTr("Gate")
        iconKey: "gate"
        group: "channel"
        padding: theme.dp(8)
        contentComponent: Component {
            RGate {
                depth: 40
            }
        }
    }
    RFlyoutWindow {
        id: compressor
        title: qsTr("Compressor")
        iconKey: "compressor"
        padding: theme.dp(8)

        Column {
            spacing: theme.dp(8)

            RSpinBox {
                label: qsTr("Threshold")
                from: -60
                to: 20
                value: -12
                suffix: "dBu"
            }
            RSpinBox {
                label: qsTr("Ratio")
                from: 1
                to: 20
                value: 4
            }
            RCheckBox {
                text: qsTr("Soft knee")
                selectable: true
            }
        }
    }
}
