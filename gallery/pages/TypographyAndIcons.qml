import QtQuick
import Gallery
import TambleClient.Control 1.0

GalleryPage {
    id: root

    description: qsTr("Texts in the sizes of the theme, and the icon set. Icons are white shapes that take the colour of the control around them.")

    TileGrid {
        Section {
            title: "RText"

            TextSizes {}
        }
        Section {
            title: "RIcon"

            IconSizes {}
        }
        Section {
            title: "RLabel"
            note: qsTr("A caption gives its buddy the focus, by a click or by Alt and the underlined letter.")

            LabelSamples {}
        }
        Section {
            title: qsTr("Shadow and focus")
            note: qsTr("RBoxShadow with a growing spread, RFocusRectangle around an item.")

            Decorations {}
        }
    }
    Section {
        title: qsTr("Icon set")
        note: qsTr("%1 icons, size class S.").arg(GalleryFiles.iconKeys.length)

        Grid {
            id: icons

            readonly property real tileWidth: Math.floor(icons.width / icons.columns)

            width: parent.width
            columns: Math.max(1, Math.floor(icons.width / theme.dp(88)))
            rowSpacing: theme.dp(16)

            // qmllint disable unqualified
            Repeater {
                model: GalleryFiles.iconKeys

                IconTile {
                    required property string modelData

                    width: icons.tileWidth
                    key: modelData
                }
            }
            // qmllint enable unqualified
        }
    }
}
