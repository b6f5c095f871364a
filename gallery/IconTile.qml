import QtQuick

/*! One icon of the module on a ground that white artwork stands out from, with a caption below. */
Column {
    id: root

    required property string key
    property int size: 24
    property string caption: root.key

    spacing: 3
    bottomPadding: 4

    Rectangle {
        anchors.horizontalCenter: parent.horizontalCenter
        width: root.size + 12
        height: root.size + 12
        radius: 4
        color: GalleryPalette.artworkGround

        Image {
            anchors.centerIn: parent
            source: "qrc:/icons/%1_%2x%2.png".arg(root.key).arg(root.size)
            Accessible.role: Accessible.Graphic
            Accessible.name: root.key
        }
    }
    GalleryText {
        width: root.width
        horizontalAlignment: Text.AlignHCenter
        text: root.caption
        elide: Text.ElideRight
        color: GalleryPalette.subtleText
        font.pixelSize: 12
    }
}
