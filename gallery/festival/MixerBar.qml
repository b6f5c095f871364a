import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! Which mixer is shown, its presets, and the equaliser of its main mix. */
Flow {
    id: root

    required property int mixer
    readonly property bool isFirst: root.mixer === GalleryInstallation.firstMixer

    signal mixerChosen(int mixer)
    signal equalizerAsked()

    spacing: theme.dp(16)

    DeviceSelection {
        id: device
        devices: [root.mixer]
        observed: false
    }
    RButtonRow {
        // qmllint disable unqualified
        Repeater {
            model: [qsTr("FOH mixer"), qsTr("Monitor mixer")]

            RButton {
                required property int index
                required property string modelData
                readonly property int mixer: GalleryInstallation.firstMixer + index

                width: theme.dp(120)
                text: modelData
                selected: root.mixer === mixer
                onClicked: root.mixerChosen(mixer)
            }
        }
        // qmllint enable unqualified
    }
    Row {
        visible: root.isFirst
        spacing: theme.dp(8)

        RComboBox {
            id: preset
            width: theme.dp(160)
            label: qsTr("Preset")
            model: GalleryInstallation.presets
            textRole: "name"
        }
        RButton {
            width: theme.dp(80)
            enabled: preset.currentIndex >= 0 && question.possible
            text: qsTr("Recall")
            onClicked: question.recall(preset.currentIndex)
        }
        RecallQuestion {
            id: question
        }
    }
    RButton {
        width: theme.dp(120)
        visible: root.isFirst
        text: qsTr("Main equaliser")
        onClicked: root.equalizerAsked()
    }
    RText {
        height: theme.dp(32)
        visible: !device.online
        verticalAlignment: Text.AlignVCenter
        text: qsTr("offline, as it was last")
        font.bold: true
    }
}
