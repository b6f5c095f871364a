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
        id: area
        width: parent.width
        height: theme.dp(192)
        RStyleSet.typeName: "RFlyoutWindow"
    }
}
