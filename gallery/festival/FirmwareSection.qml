import QtQuick
import QtQuick.Templates as T
import Gallery
import TambleClient.Control 1.0

/*! Sends a new firmware to a device, which interrupts it and is asked before. */
Column {
    id: root

    required property DeviceDetails pane
    readonly property var devices: root.pane.devices
    readonly property FirmwareUpdate update: Festival.firmware
    readonly property bool shown: root.update.running || root.update.text.length > 0

    spacing: theme.dp(8)

    Row {
        spacing: theme.dp(8)

        RButton {
            width: theme.dp(160)
            enabled: root.devices.length === 1 && !root.update.running
            text: qsTr("Update …")
            onClicked: question.open()
        }
        RButton {
            width: theme.dp(96)
            visible: root.update.running
            text: qsTr("Cancel")
            onClicked: root.update.cancel()
        }
    }
    RText {
        visible: root.shown
        text: qsTr("Device %1: %2").arg(root.update.device + 1).arg(root.update.text)
    }
    RProgressBar {
        width: Math.min(parent.width, theme.dp(320))
        visible: root.shown
        value: root.update.progress
        failed: root.update.failed
        text: "%p"
    }
    RMessageBox {
        id: question
        title: qsTr("Update the firmware?")
        text: qsTr("%1 restarts at the end and is silent for five seconds.").arg(root.pane.title)
        icon: RMessageBox.Warning
        standardButtons: T.Dialog.Yes | T.Dialog.Cancel
        onAccepted: root.update.start(root.devices[0])
    }
}
