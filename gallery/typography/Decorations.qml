import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! Shadows of growing reach, and the frame of the keyboard focus. */
Flow {
    id: root

    width: parent?.width ?? 0
    spacing: theme.dp(32)
    topPadding: theme.dp(8)
    bottomPadding: theme.dp(16)

    Repeater {
        model: [4, 8, 16]

        Surface {
            id: card

            required property int modelData

            RStyleSet.typeName: "RFlyoutWindow"
            width: theme.dp(80)
            height: theme.dp(48)

            RBoxShadow {
                spread: theme.dp(card.modelData)
                darkness: 0.5
            }
            RText {
                anchors.centerIn: parent
                text: qsTr("%1 dp").arg(card.modelData)
            }
        }
    }
    Item {
        width: theme.dp(80)
        height: theme.dp(48)

        RFocusRectangle {}
        RText {
            anchors.centerIn: parent
            text: qsTr("focus")
        }
    }
}
