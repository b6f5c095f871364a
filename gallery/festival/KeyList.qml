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

        Item {
            id: entry

            required property var modelData

            width: root.width
            height: Math.max(keys.implicitHeight, effect.implicitHeight) + theme.dp(8)

            RText {
                id: keys
                width: effect.x - theme.dp(8)
                text: entry.modelData.keys
                wrapMode: Text.Wrap
                font.bold: true
            }
            RText {
                id: effect
                x: Math.round(entry.width * 0.4)
                width: entry.width - x
                text: entry.modelData.text
                wrapMode: Text.Wrap
            }
        }
    }
    // qmllint enable unqualified
}
