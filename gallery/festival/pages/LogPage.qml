import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! What has happened in the installation. */
FestivalPage {
    title: qsTr("Log")

    EventTable {
        anchors.fill: parent
        focus: true
    }
}
