import QtQuick
import QtQuick.Layouts
import Gallery
import TambleClient.Control 1.0

/*! Panes with and without a header, one inside the other, and one that folds. */
ColumnLayout {
    id: root

    width: parent?.width ?? 0
    spacing: theme.dp(8)

    RPane {
        Layout.fillWidth: true

        RText {
            text: qsTr("A pane without a title has no header.")
        }
    }
    RPane {
        Layout.fillWidth: true
        title: qsTr("Input 1")
        iconKey: "microphone"
        collapsible: true
        headerContent: RButton {
            implicitWidth: theme.dp(80)
            implicitHeight: theme.dp(24)
            text: qsTr("Mute")
            selectable: true
        }

        ColumnLayout {
            width: parent?.width ?? 0
            spacing: theme.dp(8)

            RPaneSub {
                Layout.fillWidth: true
                title: qsTr("Preamplifier")
                collapsible: true

                Row {
                    spacing: theme.dp(8)

                    RSpinBox {
                        label: qsTr("Gain")
                        from: 0
                        to: 60
                        value: 24
                        suffix: "dB"
                    }
                    RCheckBox {
                        text: qsTr("Phantom power")
                        selectable: true
                    }
                }
            }
            RPaneSub {
                Layout.fillWidth: true
                title: qsTr("Delay")
                iconKey: "delay"
                collapsible: true
                collapsed: true

                RSpinBox {
                    label: qsTr("Delay")
                    value: 3
                    suffix: "ms"
                }
            }
        }
    }
}
