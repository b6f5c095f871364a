import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! Appearance, presets, and how the network behaves. */
FestivalPage {
    title: qsTr("Settings")
    padding: 0

    GalleryPage {
        anchors.fill: parent

        TileGrid {
            SettingsPane {
                title: qsTr("Appearance")

                SettingsLine {
                    title: qsTr("Theme")

                    ThemeSwitch {
                        width: parent.width
                    }
                }
                SettingsLine {
                    title: qsTr("Size")

                    ZoomControl {}
                }
            }
            SettingsPane {
                title: qsTr("Presets of the FOH mixer")

                PresetList {
                    width: parent.width
                }
            }
            SettingsPane {
                title: qsTr("Keys")

                KeyList {
                    width: parent.width
                }
            }
            SettingsPane {
                title: qsTr("Simulated network")

                NetworkPanel {
                    width: parent.width
                    target: everything
                }
                DeviceSelection {
                    id: everything
                    devices: Festival.chosenDevices
                }
            }
        }
    }
}
