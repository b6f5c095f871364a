import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! Which inputs of the matrix play on which outputs. */
FestivalPage {
    title: qsTr("Routing")

    RoutingTable {
        anchors.fill: parent
        focus: true
    }
}
