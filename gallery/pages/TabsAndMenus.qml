import QtQuick
import Gallery
import TambleClient.Control 1.0

GalleryPage {
    description: qsTr("Tabs that can be closed, changed and counted, and menus for commands. The arrow keys move within a row of tabs and within a menu.")

    TileGrid {
        Section {
            title: qsTr("To try")
            note: qsTr("Left, Right, Home and End move, Space and Enter choose, Delete closes.")

            LiveTabs {}
        }
        Section {
            title: qsTr("Menus")
            note: qsTr("Press the buttons, or the area with the right mouse button. A long press does it, too.")

            MenuSamples {}
        }
        TabStates {
            title: "RTabButton"
            sample: RTabButton {
                text: qsTr("Inputs")
            }
        }
        TabStates {
            title: "RTabButtonIconLabelH"
            sample: RTabButtonIconLabelH {
                text: qsTr("Mixer")
                iconKey: "mixer"
            }
        }
        TabStates {
            title: "RTabButtonIcon"
            sample: RTabButtonIcon {
                label: qsTr("Equalizer")
                iconKey: "eq"
            }
        }
        TabStates {
            title: "RTabButtonIconLabelV"
            sample: RTabButtonIconLabelV {
                text: qsTr("Presets")
                iconKey: "preset"
            }
        }
    }
}
