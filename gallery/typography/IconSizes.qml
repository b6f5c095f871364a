import QtQuick
import TambleClient.Control 1.0

/*! Four icons in each size class. */
Column {
    id: root

    spacing: theme.dp(16)

    // qmllint disable unqualified
    Repeater {
        model: ["XXS", "XS", "S", "M", "L"]

        Row {
            id: line

            required property string modelData

            spacing: theme.dp(24)

            RText {
                width: theme.dp(32)
                anchors.verticalCenter: parent.verticalCenter
                text: line.modelData
            }
            Repeater {
                model: ["check", "mute", "warning", "lock", "eq", "network"]

                Item {
                    id: place

                    required property string modelData

                    width: theme.dp(48)
                    height: icon.height

                    RIcon {
                        id: icon
                        anchors.horizontalCenter: parent.horizontalCenter
                        key: place.modelData
                        sizeClass: line.modelData
                        Accessible.role: Accessible.Graphic
                        Accessible.name: place.modelData
                    }
                }
            }
        }
    }
    // qmllint enable unqualified
}
