import QtQuick
import TambleClient.Control 1.0

/*! Buttons to try, and what they said last. */
Column {
    id: root

    property int device: 0
    property string said: qsTr("nothing yet")

    /*! What a device does that is told to switch on or off. */
    function settle(button: var, on: bool) {
        button.selected = on
        button.consistent = true
        root.said = on ? qsTr("%1: on for all").arg(button.text) : qsTr("%1: off for all").arg(button.text)
    }

    spacing: theme.dp(16)

    Grid {
        columns: 2
        columnSpacing: theme.dp(16)
        rowSpacing: theme.dp(16)
        verticalItemAlignment: Grid.AlignVCenter

        RText {
            text: qsTr("Push")
        }
        RButton {
            enabled: enabledSwitch.selected
            text: qsTr("&Identify")
            onClicked: root.said = qsTr("Identify: clicked")
        }
        RText {
            text: qsTr("Selectable")
        }
        RButtonRow {
            RButtonIconLabelH {
                RStyleSet.name: "red"
                width: theme.dp(96)
                enabled: enabledSwitch.selected
                text: qsTr("Mute")
                iconItem.key: "mute"
                selectable: true
                onSelectionEdited: selected => root.said = selected ? qsTr("Mute: on") : qsTr("Mute: off")
            }
            RButtonIconLabelH {
                RStyleSet.name: "green"
                width: theme.dp(96)
                enabled: enabledSwitch.selected
                text: qsTr("Solo")
                iconItem.key: "solo"
                selectable: true
                selected: true
                onSelectionEdited: selected => root.said = selected ? qsTr("Solo: on") : qsTr("Solo: off")
            }
        }
        RText {
            text: qsTr("One of three")
        }
        RButtonRow {
            // qmllint disable unqualified
            Repeater {
                model: [qsTr("Main"), qsTr("Aux"), qsTr("Off")]

                RButton {
                    required property int index
                    required property string modelData

                    width: theme.dp(64)
                    enabled: enabledSwitch.selected
                    text: modelData
                    selected: root.device === index
                    onClicked: {
                        root.device = index
                        root.said = qsTr("Source: %1").arg(modelData)
                    }
                }
            }
            // qmllint enable unqualified
        }
        RText {
            text: qsTr("Mixed")
        }
        RButtonRow {
            RButton {
                id: mixed
                width: theme.dp(128)
                enabled: enabledSwitch.selected
                text: mixed.consistent ? qsTr("Phantom power") : qsTr("Phantom: mixed")
                selectable: true
                consistent: false
                onSelectionEdited: selected => {
                    mixed.consistent = true
                    root.said = selected ? qsTr("Phantom power: on for all") : qsTr("Phantom power: off for all")
                }
            }
            RButton {
                width: theme.dp(64)
                enabled: enabledSwitch.selected
                text: qsTr("Mix all")
                onClicked: mixed.consistent = asking.consistent = askingSwitch.consistent = false
            }
        }
        RText {
            text: qsTr("Asks while mixed")
        }
        RButtonRow {
            spacing: theme.dp(8)

            RInconsistentButton {
                id: asking
                width: theme.dp(128)
                enabled: enabledSwitch.selected
                text: qsTr("Low cut")
                consistent: false
                onClickedOn: root.settle(asking, true)
                onClickedOff: root.settle(asking, false)
            }
            RInconsistentButtonSwitch {
                id: askingSwitch
                label: qsTr("Low cut")
                width: theme.dp(64)
                enabled: enabledSwitch.selected
                consistent: false
                onClickedOn: root.settle(askingSwitch, true)
                onClickedOff: root.settle(askingSwitch, false)
            }
        }
        RText {
            text: qsTr("Keeps you waiting")
        }
        RButton {
            id: loading
            readonly property RApplicationWindow window: loading.Window.window as RApplicationWindow
            width: theme.dp(128)
            enabled: enabledSwitch.selected
            text: qsTr("&Load a preset")
            onClicked: {
                loading.window.busy = true
                loaded.start()
            }

            Timer {
                id: loaded
                interval: 2500
                onTriggered: {
                    loading.window.busy = false
                    root.said = qsTr("Load a preset: done")
                }
            }
        }
        RText {
            text: qsTr("Enabled")
        }
        RButtonSwitch {
            id: enabledSwitch
            label: qsTr("Enabled")
            width: theme.dp(64)
            selectable: true
            selected: true
        }
    }
    RText {
        text: qsTr("Last: %1").arg(root.said)
        font.bold: true
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }
}
