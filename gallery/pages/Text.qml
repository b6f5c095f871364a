import QtQuick
import Gallery
import TambleClient.Control 1.0
import "../fields"
import "../network"

GalleryPage {
    description: qsTr("Fields for texts that devices store, and 24 devices that answer late, refuse, and are edited by others.")

    DeviceSelection {
        id: selection
        devices: chooser.chosen
    }
    FieldStates {
        title: "RTextField"
        note: qsTr("A dot marks what is not entered or not confirmed, a corner what differs between devices.")
        sample: RTextField {
            value: "192.168.10.12"
        }
    }
    FieldStates {
        title: "RTextArea"
        note: qsTr("Enter makes a line, Ctrl+Enter enters the text.")
        sample: RTextArea {
            value: qsTr("Rack 3\nnext to the stairs")
            height: theme.dp(64)
        }
    }
    TileGrid {
        Section {
            title: qsTr("Network settings")
            note: qsTr("Enter sends a text to all chosen amplifiers. Beside the field or below it: what became of it, and what the devices really have.")

            DeviceChooser {
                id: chooser
                width: parent.width
            }
            NetworkForm {
                width: parent.width
                target: selection
            }
        }
        Section {
            title: qsTr("Network")
            note: qsTr("Its behaviour may change at any time.")

            NetworkPanel {
                width: parent.width
                target: selection
            }
        }
    }
}
