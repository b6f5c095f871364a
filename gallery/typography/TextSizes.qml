import QtQuick
import TambleClient.Control 1.0

/*! The font sizes of the theme. */
Column {
    id: root

    width: parent?.width ?? 0
    spacing: theme.dp(8)

    // qmllint disable unqualified
    Repeater {
        model: [
            {
                name: "fontSizeXXL",
                size: theme.fontSizeXXL
            },
            {
                name: "fontSizeXL",
                size: theme.fontSizeXL
            },
            {
                name: "fontSizeL",
                size: theme.fontSizeL
            },
            {
                name: "fontSizeM",
                size: theme.fontSizeM
            },
            {
                name: "fontSizeS",
                size: theme.fontSizeS
            },
            {
                name: "fontSizeXS",
                size: theme.fontSizeXS
            },
            {
                name: "fontSizeXXS",
                size: theme.fontSizeXXS
            }
        ]

        Item {
            id: line

            required property var modelData

            width: root.width
            height: Math.max(name.height, sample.height)

            RText {
                id: name
                width: theme.dp(144)
                text: qsTr("%1, %2 px").arg(line.modelData.name).arg(line.modelData.size)
                anchors.baseline: sample.baseline
            }
            RText {
                id: sample
                x: name.width
                width: line.width - x
                text: qsTr("Main -6.0 dB, 1.25 kHz, \u00c4\u00df \u00e9 \u00f1")
                elide: Text.ElideRight
                font.pixelSize: line.modelData.size
            }
        }
    }
    // qmllint enable unqualified
}
