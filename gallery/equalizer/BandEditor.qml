import QtQuick
import TambleClient.Control 1.0
import "BandRules.js" as Rules

/*! The values of the selected filter to type, to step and to choose. */
Flow {
    id: root

    required property EqualizerStore store

    readonly property var band: root.store.band
    readonly property var parameters: Rules.parameters(root.band)

    spacing: theme.dp(16)

    Column {
        spacing: theme.dp(4)

        RLabel {
            text: qsTr("Filter %1").arg(root.band.label)
        }
        RButton {
            RStyleSet.name: root.band.bypass ? "red" : ""
            width: theme.dp(72)
            text: qsTr("Bypass")
            selected: root.band.bypass
            onClicked: root.store.edit(root.store.selected, "bypass", {
                bypass: !root.band.bypass
            })
        }
    }
    // qmllint disable unqualified
    Repeater {
        // Their number, so that the fields stay under the pointer while the values change.
        model: root.parameters.length

        BandValue {
            required property int index
            readonly property var entry: root.parameters[index] ?? root.parameters[0]

            key: entry.key
            name: entry.name
            store: root.store
        }
    }
    // qmllint enable unqualified
}
