import QtQuick
import TambleClient.Control 1.0

/*! Tabs, of which one is selected, and menus. */
Flow {
    id: root

    readonly property var commands: [
        { text: "Copy", iconKey: "copy", shortcut: "Ctrl+C" },
        { text: "Paste", iconKey: "paste", shortcut: "Ctrl+V", enabled: false },
        { separator: true },
        { text: "Mute", checkable: true, checked: true },
        { text: "Colour", items: [{ text: "Red" }] }
    ]

    Component.onCompleted: {
        menu.open()
        popup.open()
    }

    Sample {
        name: "RTabButton"
        Row {
            RTabButton { width: theme.dp(88); text: "Input"; selected: true }
            RTabButton { width: theme.dp(88); text: "Output" }
            RTabButton { width: theme.dp(88); text: "Log"; enabled: false }
        }
    }
    Sample {
        name: "RTabButtonIcon"
        Row {
            RTabButtonIcon { label: "Link"; iconItem.key: "link"; selected: true }
            RTabButtonIcon { label: "Mute"; iconItem.key: "mute" }
        }
    }
    Sample {
        name: "RTabButtonIconLabelH"
        Row {
            RTabButtonIconLabelH { width: theme.dp(96); text: "Link"; iconItem.key: "link"; selected: true }
            RTabButtonIconLabelH { width: theme.dp(96); text: "Mute"; iconItem.key: "mute" }
        }
    }
    Sample {
        name: "RTabButtonIconLabelV"
        Row {
            RTabButtonIconLabelV { width: theme.dp(72); text: "Link"; iconItem.key: "link"; selected: true }
            RTabButtonIconLabelV { width: theme.dp(72); text: "Mute"; iconItem.key: "mute" }
        }
    }
    Sample {
        name: "RMenu"
        shown: menu.contentItem
        RButton {
            text: "Commands"
            RMenu {
                id: menu
                model: root.commands
            }
        }
    }
    Sample {
        name: "RPopupMenu"
        shown: popup.contentItem
        Item {
            width: theme.dp(144)
            height: theme.dp(32)
            RPopupMenu {
                id: popup
                model: root.commands
            }
        }
    }
}
