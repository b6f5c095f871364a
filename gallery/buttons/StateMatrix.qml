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

    /*! Whether the titles of the states stand above the buttons, which would be too small beside them. */
    readonly property bool narrow: root.contentWidth < theme.dp(420) && root.classes.length > 2
    readonly property real labelWidth: root.narrow ? -root.gap : theme.dp(120)
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

            Grid {
                id: look

                required property var modelData

                columns: root.narrow ? 1 : 2
                spacing: root.gap
                verticalItemAlignment: Grid.AlignVCenter

                RText {
                    width: root.narrow ? root.contentWidth : root.labelWidth
                    text: look.modelData.title
                    elide: Text.ElideRight
                }
                Row {
                    spacing: root.gap

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
        }
        // qmllint enable unqualified
    }
}
