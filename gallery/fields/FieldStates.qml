import QtQuick
import Gallery
import TambleClient.Control 1.0
import "FieldLooks.js" as FieldLooks

/*! A kind of field in its states, each under its name. */
Section {
    id: root

    required property Component sample
    property real sampleWidth: theme.dp(136)

    Flow {
        width: parent.width
        spacing: theme.dp(16)

        // qmllint disable unqualified
        Repeater {
            model: FieldLooks.looks

            Column {
                id: entry

                required property var modelData

                spacing: theme.dp(4)

                RText {
                    width: root.sampleWidth
                    text: entry.modelData.title
                    elide: Text.ElideRight
                    font.pixelSize: theme.fontSizeS
                }
                FieldSample {
                    width: root.sampleWidth
                    sourceComponent: root.sample
                    look: entry.modelData
                }
            }
        }
        // qmllint enable unqualified
    }
}
