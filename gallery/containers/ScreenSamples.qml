import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! Two pages of a client in a frame, of which one is active. */
Column {
    id: root

    property bool second: false

    width: parent?.width ?? 0
    spacing: theme.dp(8)

    RButtonRow {
        RTabButton {
            text: qsTr("Inputs")
            selected: !root.second
            onClicked: root.second = false
        }
        RTabButton {
            text: qsTr("Outputs")
            selected: root.second
            onClicked: root.second = true
        }
    }
    Item {
        width: parent.width
        height: theme.dp(200)
        clip: true

        RScreen {
            id: inputs
            title: qsTr("Inputs")
            active: !root.second
            padding: theme.dp(16)

            RButton {
                id: opener
                text: qsTr("Notes")
                onClicked: notes.openAt(opener, Qt.RightEdge)
            }
            RFlyoutWindow {
                id: notes
                title: qsTr("Notes")
                resizable: true

                RText {
                    padding: theme.dp(8)
                    text: qsTr("Stays on its page.")
                }
            }
        }
        RScreen {
            title: qsTr("Outputs")
            active: root.second
            padding: theme.dp(16)

            RText {
                text: qsTr("A page that is not active is neither seen nor reached.")
            }
        }
    }
}
