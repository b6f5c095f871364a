import QtQuick
import TambleClient.Control 1.0

/*! An icon with a caption below. */
Column {
    id: root

    required property string key
    property string caption: root.key
    property string sizeClass: "S"

    spacing: theme.dp(4)

    RIcon {
        anchors.horizontalCenter: parent.horizontalCenter
        key: root.key
        sizeClass: root.sizeClass
        Accessible.role: Accessible.Graphic
        Accessible.name: root.key
    }
    RText {
        width: root.width
        horizontalAlignment: Text.AlignHCenter
        text: root.caption
        elide: Text.ElideRight
        font.pixelSize: theme.fontSizeS
    }
}
