import QtQuick
import TambleClient.Control 1.0

/*! The handle of a filter in its states, whatever the pointer does. */
Flow {
    id: root

    readonly property var looks: [
        { title: qsTr("Plain") },
        { title: qsTr("Selected"), selected: true },
        { title: qsTr("Error"), error: true },
        { title: qsTr("Bypassed"), bypassed: true },
        { title: qsTr("Focused"), focused: true },
        { title: qsTr("Q changes"), selected: true, showsQuality: true },
    ]

    spacing: theme.dp(4)

    // qmllint disable unqualified
    Repeater {
        model: root.looks

        Item {
            id: look

            required property int index
            required property var modelData

            width: theme.dp(68)
            height: theme.dp(84) // the title stands below the value of Q

            RBodeplotFilterPoint {
                id: handle
                x: (parent.width - width) / 2
                y: theme.dp(4)
                width: implicitWidth
                height: implicitHeight
                index: look.index
                label: String(look.index + 1)
                frequency: 1000
                quality: 1.4
                selected: Boolean(look.modelData.selected)
                errorFlag: Boolean(look.modelData.error)
                visiblePoint: !look.modelData.bypassed
                showQuality: Boolean(look.modelData.showsQuality)
            }
            // As around the disc of a handle with the keyboard focus.
            Loader {
                x: handle.x - theme.dp(2)
                y: handle.y - theme.dp(2)
                width: handle.width + theme.dp(4)
                height: width
                active: Boolean(look.modelData.focused)
                sourceComponent: RFocusRectangle {
                    radius: width / 2
                }
            }
            RText {
                anchors.bottom: parent.bottom
                width: parent.width
                text: look.modelData.title
                horizontalAlignment: Text.AlignHCenter
                elide: Text.ElideRight
            }
        }
    }
    // qmllint enable unqualified
}
