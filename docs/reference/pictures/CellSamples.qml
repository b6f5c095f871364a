import QtQuick
import TambleClient.Control 1.0

/*! Cells, alone and on the raster of a table. */
Flow {
    id: root

    Sample {
        name: "RCellContainer"
        RCellContainer {
            gridProperties: RCellGridProperties { columnWidth: theme.dp(96) }
            RCellLabel { text: "Channel" }
            RCellLabel { text: "Gain"; column: 1 }
            RCellTextField { row: 1; value: "Hall left"; selected: true }
            RCellSpinBox { row: 1; column: 1; value: -6; from: -80; to: 10 }
            RCellTextField { row: 2; value: "Hall right" }
            RCellSpinBox { row: 2; column: 1; value: -6; from: -80; to: 10 }
        }
    }
    Sample {
        name: "RCell"
        RCell {
            control: box
            RCheckBox { id: box; text: "48 V"; selected: true }
        }
    }
    Sample {
        name: "RCellText"
        RCellText { text: "Microphone" }
        RCellText { text: "Microphone"; selected: true }
    }
    Sample {
        name: "RCellLabel"
        RCellLabel { text: "Channel" }
    }
    Sample {
        name: "RCellButton"
        RCellButton { text: "48 V" }
        RCellButton { text: "48 V"; selectable: true; selected: true }
    }
    Sample {
        name: "RCellComboBox"
        RCellComboBox { model: ["Microphone", "Line"] }
        RCellComboBox { model: ["Microphone", "Line"]; consistent: false }
    }
    Sample {
        name: "RCellTextField"
        RCellTextField { value: "Hall left" }
        RCellTextField { value: "Hall left"; selected: true }
    }
    Sample {
        name: "RCellTextArea"
        RCellTextArea { value: "Rack 3" }
    }
    Sample {
        name: "RCellSpinBox"
        RCellSpinBox { value: -6; from: -80; to: 10 }
        RCellSpinBox { value: -6; from: -80; to: 10; current: true }
    }
    Sample {
        name: "RCellTabBar"
        RCellTabBar { model: ["In", "Out"] }
    }
    Sample {
        name: "RCellTabButton"
        RCellTabButton { width: theme.dp(96); text: "In"; selected: true }
        RCellTabButton { width: theme.dp(96); text: "Out" }
    }
}
