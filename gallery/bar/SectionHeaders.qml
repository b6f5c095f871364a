import QtQuick
import TambleClient.Control 1.0

/*! Titles of groups with the line beside and below, and with a button. */
Column {
    id: root

    spacing: theme.dp(8)

    RSectionHeader {
        width: root.width
        text: qsTr("Inputs")
    }
    RSectionHeader {
        width: root.width
        text: qsTr("Outputs")

        RButtonIcon {
            width: theme.dp(32)
            label: qsTr("Add an output")
            iconItem.key: "plus"
            iconItem.sizeClass: "XS"
        }
    }
    RSectionHeader {
        width: root.width
        text: qsTr("Network")
        lineBelow: true
    }
}
