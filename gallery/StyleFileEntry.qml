import QtQuick
import QtQuick.Templates as T

/*! A style file to choose. */
T.RadioButton {
    id: root

    implicitWidth: 220
    implicitHeight: 32
    Accessible.name: root.text

    indicator: Rectangle {
        y: (root.height - height) / 2
        width: 18
        height: 18
        radius: 9
        color: GalleryPalette.panel
        border.width: root.visualFocus ? 2 : 1
        border.color: root.visualFocus ? GalleryPalette.accent : GalleryPalette.subtleText

        Rectangle {
            anchors.centerIn: parent
            width: 8
            height: 8
            radius: 4
            color: GalleryPalette.accent
            visible: root.checked
        }
    }
    contentItem: GalleryText {
        leftPadding: 28
        verticalAlignment: Text.AlignVCenter
        text: root.text
    }
}
