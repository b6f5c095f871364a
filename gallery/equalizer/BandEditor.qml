import QtQuick
import TambleClient.Control 1.0
import "BandRules.js" as Rules

/*! The values of the selected filter with buttons to step them. */
Flow {
    id: root

    required property EqualizerStore store

    readonly property var band: root.store.band
    readonly property var parameters: Rules.parameters(root.band)

    spacing: theme.dp(16)

    Column {
        spacing: theme.dp(4)

        RText {
            text: qsTr("Filter %1").arg(root.band.label)
            font.pixelSize: theme.fontSizeS
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
        // Their number, so that the buttons stay under the pointer while the values change.
        model: root.parameters.length

        ValueStepper {
            required property int index
            readonly property var entry: root.parameters[index] ?? root.parameters[0]

            width: theme.dp(key === "type" ? 200 : 116)
            key: entry.key
            name: entry.name
            band: root.band
            onStepped: value => root.store.edit(root.store.selected, key, {
                [key]: value
            })
        }
    }
    // qmllint enable unqualified
}
