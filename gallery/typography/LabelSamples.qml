import QtQuick
import TambleClient.Control 1.0

/*! Captions in their forms, each above the button that it stands for. */
Grid {
    id: root

    // As many as have room.
    columns: Math.max(1, Math.min(3, Math.floor(((root.parent?.width ?? 0) + root.spacing) / theme.dp(152))))
    spacing: theme.dp(16)
    verticalItemAlignment: Grid.AlignBottom

    Column {
        spacing: theme.dp(4)

        RLabel {
            width: gain.width
            text: qsTr("Input &gain")
            buddy: gain
        }
        RButton {
            id: gain
            width: theme.dp(136)
            text: qsTr("-6.0 dB")
        }
    }
    Column {
        spacing: theme.dp(4)

        RLabel {
            width: name.width
            text: qsTr("Device &name")
            buddy: name
            required: true
        }
        RButton {
            id: name
            width: theme.dp(136)
            text: qsTr("Stage left")
        }
    }
    Column {
        spacing: theme.dp(4)

        RLabel {
            width: preset.width
            text: qsTr("Preset of the &whole group")
            buddy: preset
            lineVisible: true
        }
        RButton {
            id: preset
            width: theme.dp(136)
            text: qsTr("Rehearsal")
        }
    }
}
