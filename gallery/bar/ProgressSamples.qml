import QtQuick
import TambleClient.Control 1.0

/*! Transfers that go on, fail or have no known end, and a wait. */
Column {
    id: root

    spacing: theme.dp(16)

    RProgressBar {
        width: root.width
        label: qsTr("Firmware")
        value: 0.4
    }
    RProgressBar {
        width: root.width
        label: qsTr("Firmware")
        text: qsTr("Firmware, %p %")
        value: 0.65
    }
    RProgressBar {
        width: root.width
        label: qsTr("Firmware")
        text: qsTr("Amplifier 7 does not answer")
        value: 0.65
        failed: true
    }
    RProgressBar {
        width: root.width
        label: qsTr("Presets")
        value: 0.2
        failed: true
    }
    RProgressBar {
        width: root.width
        label: qsTr("Search")
        indeterminate: true
    }
    RLoadingAnimation {
        text: qsTr("Searching for devices")
    }
}
