import QtQuick
import Gallery
import TambleClient.Control 1.0
import "../tables"

GalleryPage {
    id: root

    description: qsTr("Tables on a common raster. Arrows move the current cell, Enter or F2 uses it, Shift and arrows select, Ctrl+C and Ctrl+V copy and paste.")

    Section {
        title: qsTr("Parameters")
        note: qsTr("Type into a name or a gain. Names must not be empty, gains lie between -80 and 10 dB: a paste that does not fit is marked, and nothing is lost.")

        ParameterTable {
            id: parameters
            width: parent.width
        }
        RText {
            id: report
            text: qsTr("Nothing pasted yet.")
        }
        Connections {
            target: parameters.table

            function onPasted(taken, refused) {
                report.text = qsTr("Pasted: %1 taken, %2 refused.").arg(taken).arg(refused)
            }
        }
    }
    TileGrid {
        Section {
            title: qsTr("16 x 16 crosspoints")
            note: qsTr("Row and column of the current one are active.")

            SmallMatrix {
                width: parent.width
            }
        }
        Section {
            title: qsTr("64 x 64 crosspoints")
            note: qsTr("On a TableView. Every third input has a signal, and a loudspeaker tells where it goes.")

            LargeMatrix {
                width: parent.width
            }
        }
    }
}
