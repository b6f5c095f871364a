import QtQuick
import Gallery
import TambleClient.Control 1.0

GalleryPage {
    id: root

    readonly property var window: root.Window.window

    description: qsTr("Choose a sheet of your own on top of the theme's, or edit one in %1 and save: everything follows.").arg(String(GalleryFiles.styleDirectory).replace("file://", ""))

    Connections {
        target: root.window ? root.window.styleEngine : null

        function onStyleChanged() {
            samples.refresh()
        }
    }

    TileGrid {
        Section {
            title: qsTr("User sheet")

            StyleFileList {
                key: root.window ? root.window.appStyleSheetKey : ""
                onChosen: key => root.window.appStyleSheetKey = key
            }
        }
        Section {
            title: qsTr("Samples")
            note: qsTr("Point at one to see its rules. The last one asks for a key that no sheet sets: watch the count of missing keys.")

            StyleSamples {
                id: samples
            }
        }
    }
    Section {
        title: qsTr("Rules")
        note: qsTr("The strongest first.")

        RText {
            width: parent.width
            text: samples.info
            font.family: "monospace"
            wrapMode: Text.WrapAnywhere
        }
    }
}
