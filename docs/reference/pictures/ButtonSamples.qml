import QtQuick
import TambleClient.Control 1.0

/*! Buttons as they are, selected, mixed and disabled. */
Flow {
    id: root

    Sample {
        name: "RButton"
        Column {
            spacing: theme.dp(4)
            RButton { text: "Mute" }
            RButton { text: "Mute"; selected: true }
            RButton { text: "Mute"; consistent: false }
            RButton { text: "Mute"; enabled: false }
        }
    }
    Sample {
        name: "RButtonIcon"
        RButtonIcon { width: height; label: "Mute"; iconItem.key: "mute" }
        RButtonIcon { width: height; label: "Mute"; iconItem.key: "mute"; selected: true }
        RButtonIcon { width: height; label: "Mute"; iconItem.key: "mute"; enabled: false }
    }
    Sample {
        name: "RButtonIconLabel"
        Column {
            spacing: theme.dp(4)
            RButtonIconLabel { text: "Link"; iconItem.key: "link" }
            RButtonIconLabel { text: "Link"; iconItem.key: "link"; showIcon: true; selected: true }
        }
    }
    Sample {
        name: "RButtonIconLabelH"
        Column {
            spacing: theme.dp(4)
            RButtonIconLabelH { text: "Link"; iconItem.key: "link" }
            RButtonIconLabelH { text: "Link"; iconItem.key: "link"; selected: true }
        }
    }
    Sample {
        name: "RButtonIconLabelV"
        RButtonIconLabelV { width: theme.dp(72); text: "Link"; iconItem.key: "link" }
        RButtonIconLabelV { width: theme.dp(72); text: "Link"; iconItem.key: "link"; selected: true }
    }
    Sample {
        name: "RButtonLabelText"
        RButtonLabelText { width: theme.dp(96); text: "Gain"; textSub: "+3.0 dB" }
        RButtonLabelText { width: theme.dp(96); text: "Gain"; textSub: "+3.0 dB"; selected: true }
    }
    Sample {
        name: "RButtonRow"
        RButtonRow {
            RButton { width: theme.dp(64); text: "Pre"; selected: true }
            RButton { width: theme.dp(64); text: "Post" }
            RButton { width: theme.dp(64); text: "Off" }
        }
    }
    Sample {
        name: "RButtonSwitch"
        RButtonSwitch { label: "Phantom power" }
        RButtonSwitch { label: "Phantom power"; selected: true }
        RButtonSwitch { label: "Phantom power"; consistent: false }
        RButtonSwitch { label: "Phantom power"; enabled: false }
    }
    Sample {
        name: "RInconsistentButton"
        Column {
            spacing: theme.dp(4)
            RInconsistentButton { text: "Mute"; selected: true }
            RInconsistentButton { text: "Mute"; consistent: false }
        }
    }
    Sample {
        name: "RInconsistentButtonSwitch"
        RInconsistentButtonSwitch { label: "Mute"; selected: true }
        RInconsistentButtonSwitch { label: "Mute"; consistent: false }
    }
    Sample {
        name: "RInconsistentPopup"
        shown: popup.contentItem
        RButton {
            text: "Mute"
            consistent: false
            RInconsistentPopup {
                id: popup
                visible: true
            }
        }
    }
}
