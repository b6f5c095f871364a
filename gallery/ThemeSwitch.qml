import QtQuick
import QtQuick.Templates as T

/*! Chooses between the light and the dark theme. */
T.Switch {
    id: root

    height: 32
    text: qsTr("Dark theme")
    checked: GalleryPalette.dark
    Accessible.name: root.text
    onToggled: {
        GalleryPalette.dark = root.checked
        root.checked = Qt.binding(() => GalleryPalette.dark) // the click has broken it
    }
    Keys.onReturnPressed: GalleryPalette.dark = !GalleryPalette.dark
    Keys.onEnterPressed: GalleryPalette.dark = !GalleryPalette.dark

    contentItem: GalleryText {
        leftPadding: 52
        verticalAlignment: Text.AlignVCenter
        text: root.text
    }
    indicator: Rectangle {
        y: (root.height - height) / 2
        width: 40
        height: 20
        radius: 10
        color: GalleryPalette.dark ? GalleryPalette.accent : GalleryPalette.line
        border.width: root.visualFocus ? 2 : 1
        border.color: root.visualFocus ? GalleryPalette.text : GalleryPalette.subtleText

        Rectangle {
            x: GalleryPalette.dark ? 22 : 4
            y: 3
            width: 14
            height: 14
            radius: 7
            color: GalleryPalette.dark ? GalleryPalette.panel : GalleryPalette.subtleText
        }
    }
}
