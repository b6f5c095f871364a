import QtQuick
import Gallery
import TambleClient.Control 1.0
import "ButtonLooks.js" as ButtonLooks

/*! A kind of button in all its states, one a row, and in all its classes, one a column. */
Section {
    id: root

    required property Component sample
    /*! Class words, and the states with their titles. */
    property var classes: ButtonLooks.classes
    property var looks: ButtonLooks.looks

    readonly property real labelWidth: theme.dp(120)
    readonly property real gap: theme.dp(8)
    readonly property real cellWidth: Math.floor((root.contentWidth - root.labelWidth) / root.classes.length - root.gap)

    Column {
        spacing: root.gap

        Row {
            leftPadding: root.labelWidth + root.gap
            spacing: root.gap

            // qmllint disable unqualified
            Repeater {
                model: root.classes

                RText {
                    required property string modelData

                    width: root.cellWidth
                    text: modelData || qsTr("no class")
                    elide: Text.ElideRight
                    horizontalAlignment: Text.AlignHCenter
                }
            }
            // qmllint enable unqualified
        }
        // qmllint disable unqualified
        Repeater {
            model: root.looks

            Row {
                id: look

                required property var modelData

                spacing: root.gap

                RText {
                    width: root.labelWidth
                    anchors.verticalCenter: parent.verticalCenter
                    text: look.modelData.title
                    elide: Text.ElideRight
                }
                Repeater {
                    model: root.classes

                    ButtonSample {
                        required property string modelData

                        width: root.cellWidth
                        sourceComponent: root.sample
                        styleClass: modelData
                        states: look.modelData.states
                    }
                }
            }
        }
        // qmllint enable unqualified
    }
}
