import QtQuick
import TambleClient.Control 1.0

/*! Texts, icons and decoration. */
Flow {
    id: root

    Sample {
        name: "RText"
        RText { text: "Input 1" }
        RText { text: "−12.5 dBu"; font.pixelSize: theme.fontSizeL }
    }
    Sample {
        name: "RLabel"
        RLabel { width: theme.dp(96); text: "&Threshold"; buddy: field; lineVisible: true }
        RLabel { width: theme.dp(96); text: "Name"; required: true }
        Item {
            id: field
        }
    }
    Sample {
        name: "RIcon"
        Repeater {
            model: ["XXS", "XS", "S", "M", "L"]
            RIcon {
                required property string modelData
                key: "loudspeaker"
                sizeClass: modelData
            }
        }
    }
    Sample {
        name: "RBoxShadow"
        Item {
            width: theme.dp(120)
            height: theme.dp(56)
            RButton {
                anchors.centerIn: parent
                width: theme.dp(88)
                text: "Flyout"
                RBoxShadow {}
            }
        }
    }
    Sample {
        name: "RFocusRectangle"
        Item {
            width: theme.dp(96)
            height: theme.dp(32)
            RText { anchors.centerIn: parent; text: "Focused" }
            RFocusRectangle {}
        }
    }
    Sample {
        name: "RStyleDebugMouseArea"
        RButton {
            width: theme.dp(96)
            text: "Item"
            RStyleDebugMouseArea { debug: false }
        }
    }
}
