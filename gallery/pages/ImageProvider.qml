import QtQuick
import Gallery
import TambleClient.Control 1.0

GalleryPage {
    id: root

    description: qsTr("Pictures that an installation keeps beside the application. A variant that is missing falls back to a less specific one, an unknown name to the placeholder.")

    TileGrid {
        minimumTileWidth: theme.dp(304)

        PictureCard {
            pictureId: "ui/buttons/add_24x24_hover"
            found: qsTr("buttons/add_24x24_hover.png")
        }
        PictureCard {
            pictureId: "ui/buttons/add_24x24_pressed"
            found: qsTr("buttons/add_24x24.png, the variant without its state")
        }
        PictureCard {
            pictureId: "ui/buttons/add_64x64"
            found: qsTr("buttons/add.png, the variant of any size")
        }
        PictureCard {
            pictureId: "products/amplifier"
            found: qsTr("products/amplifier.png")
        }
        PictureCard {
            pictureId: "products/unknown"
            found: qsTr("Placeholder.png, no such product")
        }
        PictureCard {
            pictureId: "elsewhere/add"
            found: qsTr("Placeholder.png, no such kind of picture")
        }
    }
}
