import QtQuick
import QtQuick.Layouts
import TambleClient.Control 1.0
import "BandRules.js" as Rules

/*! A filter in the list: select it by its name, bypass it, read its values, above its type where there is no room. */
GridLayout {
    id: root

    required property EqualizerStore store
    required property int index

    readonly property var band: root.store.bands[root.index]
    readonly property bool narrow: root.width < theme.dp(448)
    readonly property bool isEqualizer: root.band.kind === "eq" || root.band.kind === "asym"

    function valueText(key: string): string {
        return Rules.has(root.band, key) ? Rules.text(root.band, key) : ""
    }

    columnSpacing: theme.dp(8)
    rowSpacing: 0

    RButton {
        Layout.preferredWidth: theme.dp(40)
        text: root.band.label
        selected: root.store.selected === root.index
        Accessible.name: qsTr("Filter %1").arg(root.band.label)
        onClicked: root.store.selected = root.index
    }
    RText {
        Layout.row: root.narrow ? 1 : 0
        Layout.column: 1
        Layout.fillWidth: true
        text: Rules.typeName(root.band)
        elide: Text.ElideRight
        opacity: values.opacity
    }
    Row {
        id: values
        Layout.row: 0
        Layout.column: root.narrow ? 1 : 2
        Layout.alignment: Qt.AlignRight | Qt.AlignVCenter
        opacity: root.band.bypass ? 0.65 : 1

        ValueText {
            width: theme.dp(112)
            text: Rules.frequenciesText(root.band)
        }
        ValueText {
            width: theme.dp(64)
            visible: root.isEqualizer
            text: root.valueText("gain")
        }
        ValueText {
            width: theme.dp(40)
            visible: root.isEqualizer
            text: root.valueText("quality")
        }
    }
    RButton {
        RStyleSet.name: root.band.bypass ? "red" : ""
        Layout.row: 0
        Layout.column: root.narrow ? 2 : 3
        Layout.preferredWidth: theme.dp(64)
        Layout.leftMargin: theme.dp(8)
        text: qsTr("Bypass")
        selected: root.band.bypass
        Accessible.name: qsTr("Bypass filter %1").arg(root.band.label)
        onClicked: root.store.edit(root.index, "bypass", {
            bypass: !root.band.bypass
        })
    }
}
