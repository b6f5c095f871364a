import QtQuick
import TambleClient.Control 1.0

/*! The keys of the client, and what they do. */
Column {
    id: root

    readonly property var keys: [
        { keys: qsTr("Ctrl+Page Up, Page Down"), text: qsTr("previous and next page") },
        { keys: qsTr("Ctrl+Z, Ctrl+Y"), text: qsTr("undo and redo, on any page") },
        { keys: qsTr("Ctrl+F"), text: qsTr("search on the stage") },
        { keys: qsTr("Enter, on the stage"), text: qsTr("the block's device") },
        { keys: qsTr("Tab, Shift+Tab"), text: qsTr("next and previous control") },
        { keys: qsTr("Arrows, with Shift, with Ctrl"), text: qsTr("step, finely, coarsely") },
        { keys: qsTr("Esc"), text: qsTr("give up what is being typed or dragged") },
        { keys: qsTr("Ctrl++, Ctrl+-, Ctrl+0"), text: qsTr("larger, smaller, automatic size; on the stage: of the plan") },
        { keys: qsTr("Ctrl+T"), text: qsTr("next theme") },
    ]

    // qmllint disable unqualified
    Repeater {
        model: root.keys

        Row {
            id: entry

            required property var modelData

            bottomPadding: theme.dp(8)
            spacing: theme.dp(8)

            RText {
                id: keys
                width: Math.round(root.width * 0.4)
                text: entry.modelData.keys
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignLeft
                font.bold: true
            }
            RText {
                width: root.width - keys.width - entry.spacing
                text: entry.modelData.text
                wrapMode: Text.Wrap
                horizontalAlignment: Text.AlignLeft
            }
        }
    }
    // qmllint enable unqualified
}
