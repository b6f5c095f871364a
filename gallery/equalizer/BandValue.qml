import QtQuick
import Gallery
import TambleClient.Control 1.0
import "BandRules.js" as Rules

/*! One value of the selected filter: a number, or one of a few words. */
Loader {
    id: root

    required property string key
    required property string name
    required property EqualizerStore store

    readonly property bool isWord: Rules.choices(root.store.band, root.key).length > 0

    function edit(value: var) {
        root.store.edit(root.store.selected, root.key, {
            [root.key]: value
        })
    }

    sourceComponent: root.isWord ? word : number

    // qmllint disable unqualified
    Component {
        id: word

        Column {
            width: theme.dp(200)
            spacing: theme.dp(4)

            RLabel {
                width: parent.width
                text: root.name
                buddy: box
            }
            RComboBox {
                id: box
                width: parent.width
                label: root.name
                model: Rules.choices(root.store.band, root.key)
                textRole: "name"
                valueRole: "value"
                value: root.store.band[root.key]
                // The store takes it at once, and the next filter may be shown before anything would settle.
                settleTime: 0
                onValueEdited: value => root.edit(value)
            }
        }
    }
    Component {
        id: number

        ValueField {
            width: theme.dp(144)
            key: root.key
            name: root.name
            store: root.store
            onEdited: value => root.edit(value)
        }
    }
    // qmllint enable unqualified
}
