import QtQuick
import QtQuick.Templates as T
import Gallery
import TambleClient.Control 1.0

/*! Message boxes of each kind, and what was answered last. */
Column {
    id: root

    property string said: qsTr("nothing yet")

    width: parent.width
    spacing: theme.dp(16)

    Flow {
        width: parent.width
        spacing: theme.dp(8)

        RButton {
            text: qsTr("Information")
            onClicked: information.open()
        }
        RButton {
            text: qsTr("Question")
            onClicked: question.open()
        }
        RButton {
            text: qsTr("Warning")
            onClicked: warning.open()
        }
        RButton {
            text: qsTr("Failure")
            onClicked: failure.open()
        }
        RButton {
            text: qsTr("All four")
            onClicked: {
                information.open()
                question.open()
                warning.open()
                failure.open()
            }
        }
    }
    RText {
        text: qsTr("Last: %1").arg(root.said)
        font.bold: true
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    RMessageBox {
        id: information
        title: qsTr("Scene")
        text: qsTr("The scene is stored.")
        icon: RMessageBox.Information
        onClosed: root.said = qsTr("read")
    }
    RMessageBox {
        id: question
        title: qsTr("Scene")
        text: qsTr("Recall scene 4 now?")
        informativeText: qsTr("All levels change at once.")
        icon: RMessageBox.Question
        standardButtons: T.Dialog.Yes | T.Dialog.No
        dontAskKey: "gallery recall"
        onAccepted: root.said = qsTr("recalled")
        onRejected: root.said = qsTr("not recalled")
    }
    RMessageBox {
        id: warning
        title: qsTr("Factory settings")
        text: qsTr("Reset amplifier 1 to factory settings?")
        informativeText: qsTr("Its presets are lost.")
        icon: RMessageBox.Warning
        standardButtons: T.Dialog.Yes | T.Dialog.Cancel
        onAccepted: root.said = qsTr("reset")
        onRejected: root.said = qsTr("kept")
    }
    RMessageBox {
        id: failure
        title: qsTr("Firmware")
        text: qsTr("The update of amplifier 2 failed.")
        detailedText: Array.from({ length: 20 }, (_, index) => qsTr("Block %1: no answer").arg(index)).join("\n")
        icon: RMessageBox.Critical
        standardButtons: T.Dialog.Retry | T.Dialog.Ignore
        onButtonClicked: button => root.said = button === T.Dialog.Retry ? qsTr("again") : qsTr("ignored")
    }
}
