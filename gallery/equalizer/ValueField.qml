import QtQuick
import Gallery
import TambleClient.Control 1.0
import "BandRules.js" as Rules

/*! A number of a filter, to type or to step. */
Column {
    id: root

    required property string key
    required property string name
    required property EqualizerStore store

    readonly property var limits: Rules.limits(root.key)
    readonly property real number: root.store.band[root.key] ?? NaN

    signal edited(value: real)

    spacing: theme.dp(4)

    // What was typed for one filter is none of the next one's business.
    Connections {
        target: root.store

        function onSelectedChanged() {
            input.edit.cancel()
        }
        function onChannelChanged() {
            input.edit.cancel()
        }
    }
    RLabel {
        width: parent.width
        text: root.name
        buddy: input
    }
    RSpinBox {
        id: input
        width: parent.width
        label: root.name
        from: root.limits.from
        to: root.limits.to
        stepSize: Rules.stepSize(root.key, root.number)
        decimals: root.limits.decimals
        value: root.number
        converter: RDoubleValueConverter {
            decimals: root.limits.shownDecimals
            unit: root.limits.unit
            plusSign: root.limits.signed
            kilo: root.limits.kilo
        }
        onValueEdited: value => root.edited(value)
    }
}
