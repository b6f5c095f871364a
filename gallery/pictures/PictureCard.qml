import QtQuick
import QtQuick.Layouts
import Gallery
import TambleClient.Control 1.0

/*! A picture of the image provider, the id it is asked for, and the file that answers. */
Item {
    id: root

    required property string pictureId
    required property string found

    Layout.fillWidth: true
    Layout.preferredWidth: 1
    implicitHeight: theme.dp(192)

    Surface {
        anchors.fill: parent
        RStyleSet.typeName: "RPane"
    }
    Image {
        id: picture
        x: (root.width - width) / 2
        y: theme.dp(64) - height / 2
        // A pixel of the file is a unit of the interface, on displays of any resolution.
        width: theme.dp(picture.sourceSize.width)
        height: theme.dp(picture.sourceSize.height)
        source: "image://tamble/" + root.pictureId
        Accessible.role: Accessible.Graphic
        Accessible.name: root.pictureId
    }
    Column {
        x: theme.dp(16)
        y: theme.dp(128)
        width: root.width - theme.dp(32)
        spacing: theme.dp(4)

        RText {
            width: parent.width
            text: root.pictureId
            font.bold: true
            elide: Text.ElideMiddle
        }
        RText {
            width: parent.width
            text: root.found
            wrapMode: Text.Wrap
        }
    }
}
