import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! A list, which is what stands in it, below its caption. */
Column {
    id: root

    required property string title
    default property alias list: area.data

    width: theme.dp(208)
    spacing: theme.dp(4)

    RLabel {
        text: root.title
    }
    Surface {
        id: frame
        width: parent.width
        height: theme.dp(192) + 2 * frame.border.width
        RStyleSet.typeName: "RFlyoutWindow"

        Item {
            id: area
            anchors.fill: parent
            anchors.margins: frame.border.width
        }
    }
}
