import QtQuick
import Gallery
import TambleClient.Control 1.0
import "../helpers"

GalleryPage {
    description: qsTr("What stands behind fields and lists: validators, converters, sorting, searching, the pointer.")

    TileGrid {
        Section {
            title: qsTr("Validators")
            note: qsTr("Only what no further typing can mend is refused at the key.")

            Validators {}
        }
        Section {
            title: "RStringRuleValidator"
            note: qsTr("The same text under ten rules.")

            StringRules {}
        }
        Section {
            title: qsTr("RSortFilterProxyModel over 24 amplifiers")
            note: qsTr("A search looks into names, locations and addresses. Click a head again to turn the order.")

            AmplifierTable {}
        }
        Section {
            title: qsTr("RValueConverter and RDoubleValueConverter")
            note: qsTr("Type a value and press Enter. Blanks, units and either decimal separator are read.")

            Converters {}
        }
        Section {
            title: "RMouseDetection, RMouseCursor, RMouseEventSpy"
            note: qsTr("The spy sees every press in the window and takes none.")

            PointerSample {}
        }
    }
}
