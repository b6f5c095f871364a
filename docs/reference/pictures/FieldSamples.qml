import QtQuick
import TambleClient.Control 1.0

/*! Fields for texts, numbers and choices: as they are, with a text that is not acceptable, mixed and disabled. */
Flow {
    id: root

    Sample {
        name: "RTextField"
        Column {
            spacing: theme.dp(4)
            RTextField { label: "Name"; value: "Hall left" }
            RTextField { label: "Name"; placeholderText: "Name" }
            RTextField { label: "Name"; value: "Hall left"; errorText: "This name is taken" }
            RTextField { label: "Name"; consistent: false }
            RTextField { label: "Name"; value: "Hall left"; enabled: false }
        }
    }
    Sample {
        name: "RNumberTextField"
        Column {
            spacing: theme.dp(4)
            RNumberTextField { label: "Delay"; value: 12.5; unit: "ms" }
            RNumberTextField { label: "Delay"; value: 12.5; unit: "ms"; confirmed: false }
            RNumberTextField { label: "Delay"; value: 12.5; unit: "ms"; enabled: false }
        }
    }
    Sample {
        name: "RTextArea"
        RTextArea { height: theme.dp(80); label: "Notes"; value: "Rack 3, below the stage.\nKey at the desk." }
        RTextArea { height: theme.dp(80); label: "Notes"; placeholderText: "Notes" }
    }
    Sample {
        name: "RTextInput"
        RText { id: caption; text: "Name" }
        RTextInput { width: theme.dp(96); text: "Hall left"; color: caption.color }
    }
    Sample {
        name: "RSpinBox"
        Column {
            spacing: theme.dp(4)
            RSpinBox { label: "Gain"; from: -80; to: 10; value: -6; suffix: "dB" }
            RSpinBox { label: "Gain"; from: -80; to: 10; value: -6; suffix: "dB"; confirmed: false }
            RSpinBox { label: "Gain"; from: -80; to: 10; consistent: false }
            RSpinBox { label: "Gain"; from: -80; to: 10; value: -6; suffix: "dB"; enabled: false }
        }
    }
    Sample {
        name: "RComboBox"
        Column {
            spacing: theme.dp(4)
            RComboBox { label: "Source"; model: ["Microphone", "Line"] }
            RComboBox { label: "Source"; model: ["Microphone", "Line"]; editable: true }
            RComboBox { label: "Source"; model: ["Microphone", "Line"]; consistent: false }
            RComboBox { label: "Source"; model: ["Microphone", "Line"]; enabled: false }
        }
    }
    Sample {
        name: "RCheckBox"
        Column {
            RCheckBox { text: "Phantom power" }
            RCheckBox { text: "Phantom power"; selected: true }
            RCheckBox { text: "Phantom power"; consistent: false }
            RCheckBox { text: "Phantom power"; selected: true; enabled: false }
        }
    }
}
