import QtQuick
import QtQuick.Layouts
import Gallery
import TambleClient.Control 1.0

GalleryPage {
    description: qsTr("What opens over a page: forms, questions and tools. Enter presses the marked button, Esc takes back what was typed and then closes, and the focus goes back to where it was.")

    TileGrid {
        id: tiles

        Section {
            title: "RDialog"
            note: qsTr("Drag the header. Without a name the form is not accepted.")

            DialogSamples {}
        }
        Section {
            title: "RMessageBox"
            note: qsTr("Several wait in order. Where something would be lost, Enter does not confirm.")

            MessageBoxSamples {}
        }
        Section {
            Layout.columnSpan: tiles.columns
            title: "RFlyoutWindow, RFlyoutToolbar"
            note: qsTr("Drag a header; edges and neighbours attract it, and what lies at an edge stays there. A double click or Alt+Up folds, Ctrl with an arrow moves, Ctrl+F6 goes to the next one, Esc closes.")

            FlyoutSamples {}
        }
    }
}
