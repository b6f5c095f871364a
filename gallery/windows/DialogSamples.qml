import QtQuick
import QtQuick.Templates as T
import Gallery
import TambleClient.Control 1.0

/*! A form, a long text, and a dialog that waits for its device. */
Column {
    id: root

    property string said: qsTr("nothing yet")

    width: parent.width
    spacing: theme.dp(16)

    Flow {
        width: parent.width
        spacing: theme.dp(8)

        RButton {
            text: qsTr("Form")
            onClicked: form.open()
        }
        RButton {
            text: qsTr("Long text")
            onClicked: licence.open()
        }
        RButton {
            text: qsTr("Busy")
            onClicked: update.open()
        }
    }
    RText {
        text: qsTr("Last: %1").arg(root.said)
        font.bold: true
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    RDialog {
        id: form
        title: qsTr("Amplifier 1")
        iconKey: "amplifier"
        standardButtons: T.Dialog.Ok | T.Dialog.Cancel
        buttons: RButton {
            text: qsTr("Identify")
            onClicked: root.said = qsTr("identified")
        }
        onAccepted: root.said = qsTr("%1 on channel %2").arg(nameField.text).arg(channel.value)
        onRejected: root.said = qsTr("cancelled")

        Grid {
            columns: 2
            spacing: theme.dp(8)
            verticalItemAlignment: Grid.AlignVCenter

            RLabel {
                text: qsTr("&Name")
                buddy: nameField
            }
            RTextField {
                id: nameField
                width: theme.dp(240)
                text: qsTr("Main left")
                required: true
            }
            RLabel {
                text: qsTr("&Channel")
                buddy: channel
            }
            RSpinBox {
                id: channel
                from: 1
                to: 64
                value: 1
            }
            RLabel {
                text: qsTr("&Source")
                buddy: source
            }
            RComboBox {
                id: source
                width: theme.dp(240)
                model: [qsTr("Analogue"), qsTr("Network"), qsTr("Pink noise")]
            }
        }
    }
    RDialog {
        id: licence
        title: qsTr("Notes on this release")
        standardButtons: T.Dialog.Close

        RText {
            width: parent.width
            wrapMode: Text.Wrap
            text: Array.from({ length: 60 }, (_, index) => qsTr("%1. What is longer than nine tenths of the window scrolls.").arg(index + 1)).join("\n")
        }
    }
    RDialog {
        id: update
        title: qsTr("Firmware")
        standardButtons: T.Dialog.Apply | T.Dialog.Close
        busy: waiting.running
        onApplied: waiting.start()

        RText {
            width: parent.width
            wrapMode: Text.Wrap
            text: qsTr("Apply takes three seconds, in which the dialog takes no input.")
        }
        Timer {
            id: waiting
            interval: 3000
        }
    }
}
