import QtQuick
import TambleClient.Control 1.0

/*! Six icons in each size class, closer together where there is little room. */
Column {
    id: root

    readonly property real gap: Math.max(0, Math.min(theme.dp(24), (root.width - theme.dp(32 + 6 * 48)) / 6))

    width: parent?.width ?? 0
    spacing: theme.dp(16)

    // qmllint disable unqualified
    Repeater {
        model: ["XXS", "XS", "S", "M", "L"]

        Row {
            id: line

            required property string modelData

            spacing: root.gap

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

                    anchors.verticalCenter: parent.verticalCenter
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
