import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! Processors in the paths of single channels. */
FestivalPage {
    title: qsTr("Dynamics")
    listening: true
    padding: 0

    GalleryPage {
        anchors.fill: parent

        TileGrid {
            CompressorTile {
                title: qsTr("Compressor")
                history: GalleryInstallation.history
            }
            LimiterTile {
                title: qsTr("Limiter")
                history: GalleryInstallation.history
            }
            GateTile {
                title: qsTr("Gate")
                history: GalleryInstallation.history
            }
            DuckerTile {
                title: qsTr("Ducker")
                history: GalleryInstallation.history
            }
            AgcTile {
                title: qsTr("Speech level")
                history: GalleryInstallation.history
            }
            AncTile {
                title: qsTr("Noise compensation")
                history: GalleryInstallation.history
            }
        }
    }
}
