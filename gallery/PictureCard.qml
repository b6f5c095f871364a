import QtQuick

/*! A picture of the image provider, the id it is asked for, and the file that answers. */
Rectangle {
    id: root

    required property string pictureId
    required property string found

    width: 320
    height: 200
    radius: 4
    color: GalleryPalette.panel
    border.color: GalleryPalette.line

    Image {
        anchors.horizontalCenter: parent.horizontalCenter
        y: 64 - height / 2
        source: "image://tamble/" + root.pictureId
        Accessible.role: Accessible.Graphic
        Accessible.name: root.pictureId
    }
    Column {
        x: 16
        y: 134
        width: parent.width - 2 * x
        spacing: 2

        GalleryText {
            width: parent.width
            text: root.pictureId
            font.bold: true
            elide: Text.ElideMiddle
        }
        GalleryText {
            width: parent.width
            text: root.found
            color: GalleryPalette.subtleText
            wrapMode: Text.WordWrap
        }
    }
}
