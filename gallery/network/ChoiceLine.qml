import QtQuick
import TambleClient.Control 1.0

/*! A number of the network's behaviour: a few values to choose from. */
Flow {
    id: root

    required property string title
    required property real value
    required property list<real> choices

    signal chosen(real value)

    width: parent?.width ?? 0
    spacing: theme.dp(8)
    Accessible.role: Accessible.Grouping
    Accessible.name: root.title

    RText {
        width: theme.dp(152)
        height: theme.dp(32)
        text: root.title
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }
    RButtonRow {
        // qmllint disable unqualified
        Repeater {
            model: root.choices

            RButton {
                required property real modelData

                width: theme.dp(56)
                text: String(modelData)
                selected: root.value === modelData
                Accessible.name: qsTr("%1: %2").arg(root.title).arg(modelData)
                onClicked: root.chosen(modelData)
            }
        }
        // qmllint enable unqualified
    }
}
