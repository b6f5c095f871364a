import QtQuick
import Gallery
import TambleClient.Control 1.0
import "../fields"
import "../network"

GalleryPage {
    description: qsTr("Fields for numbers and choices, against devices that round, clamp, answer late and are edited by others.")

    DeviceSelection {
        id: selection
        devices: chooser.chosen
    }
    FieldStates {
        title: "RSpinBox"
        note: qsTr("Arrow keys and the wheel step, with Shift finely and with Ctrl coarsely. Steps of a mixed box shift each device.")
        sample: RSpinBox {
            from: -80
            to: 18
            stepSize: 0.5
            value: -6
            suffix: qsTr("dB")
        }
    }
    FieldStates {
        title: "RNumberTextField"
        sample: RNumberTextField {
            value: 12.5
            unit: qsTr("ms")
        }
    }
    FieldStates {
        title: "RComboBox"
        note: qsTr("Only a choice in the open list counts: no stray key or turn of the wheel routes a source.")
        sample: RComboBox {
            model: GalleryInstallation.sources
            textRole: "name"
            valueRole: "sourceId"
            value: 102
        }
    }
    FieldStates {
        title: "RCheckBox"
        sample: RCheckBox {
            text: qsTr("Phantom power")
            selected: true
        }
    }
    TileGrid {
        Section {
            title: qsTr("Channels")
            note: qsTr("The device rounds a delay to samples, of which 48 are a millisecond.")

            DeviceChooser {
                id: chooser
                width: parent.width
            }
            ChannelForm {
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
