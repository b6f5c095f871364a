import QtQuick
import TambleClient.Control 1.0

/*! Channel strips side by side, and which of them are seen. */
Column {
    id: root

    spacing: theme.dp(16)

    RHorizontalScrollView {
        id: strips
        width: parent.width
        height: theme.dp(240)
        snapToItems: snap.selected

        // qmllint disable unqualified
        Repeater {
            model: 24

            Column {
                required property int index

                width: theme.dp(64)
                height: theme.dp(232)
                spacing: theme.dp(4)

                RText {
                    width: parent.width
                    text: qsTr("Ch %1").arg(parent.index + 1)
                    horizontalAlignment: Text.AlignHCenter
                }
                RFader {
                    anchors.horizontalCenter: parent.horizontalCenter
                    height: theme.dp(160)
                    value: -3 * (parent.index % 7)
                }
                RButton {
                    width: parent.width
                    text: qsTr("Mute")
                    selectable: true
                    RStyleSet.name: "red"
                }
            }
        }
        // qmllint enable unqualified
    }
    Row {
        spacing: theme.dp(16)

        RCheckBox {
            id: snap
            text: qsTr("Ends with a whole strip")
        }
        RText {
            height: theme.dp(32)
            text: qsTr("Channels %1 to %2").arg(strips.firstVisibleIndex + 1).arg(strips.lastVisibleIndex + 1)
            verticalAlignment: Text.AlignVCenter
        }
    }
}
