import QtQuick
import Gallery

GalleryPage {
    id: root

    description: qsTr("The whole icon set at 24 units, and four of it in every size. Icons are white shapes that a control tints.")

    Row {
        spacing: 20

        Repeater {
            model: [8, 16, 24, 32, 48]

            IconSample {
                required property int modelData
                size: modelData
            }
        }
    }

    Flow {
        width: parent.width
        spacing: 4

        Repeater {
            model: GalleryFiles.iconKeys

            IconTile {
                required property string modelData
                width: 92
                key: modelData
            }
        }
    }
}
