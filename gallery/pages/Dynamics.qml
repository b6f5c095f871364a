import QtQuick
import Gallery
import TambleClient.Control 1.0
import "../dynamics"

GalleryPage {
    description: qsTr("Each panel shapes a channel of the signal: drag its handles and watch the meters, or walk the handles with Tab and the arrow keys. Full scale of the signal is 20 dBu.")
    listening: true

    TileGrid {
        LimiterTile {}
        CompressorTile {}
        AgcTile {}
        AncTile {}
        DuckerTile {}
        GateTile {}
    }
}
