import QtQuick
import QtQuick.Layouts
import TambleClient.Control 1.0
import "BandRules.js" as Rules

/*! A filter in the list: select it by its name, bypass it, read its values. */
RowLayout {
    id: root

    required property EqualizerStore store
    required property int index

    readonly property var band: root.store.bands[root.index]
    /*! The values stand below the type then. */
    readonly property bool narrow: root.width < theme.dp(440)
    readonly property bool isEqualizer: root.band.kind === "eq" || root.band.kind === "asym"

    function valueText(key: string): string {
        return Rules.has(root.band, key) ? Rules.text(root.band, key) : ""
    }

    spacing: theme.dp(8)

    RButton {
        Layout.preferredWidth: theme.dp(40)
        text: root.band.label
        selected: root.store.selected === root.index
        Accessible.name: qsTr("Filter %1").arg(root.band.label)
        onClicked: root.store.selected = root.index
    }
    GridLayout {
        columns: root.narrow ? 1 : 2
        columnSpacing: root.spacing
        rowSpacing: 0

        RText {
            Layout.fillWidth: true
            text: Rules.typeName(root.band)
            elide: Text.ElideRight
            opacity: values.opacity
        }
        Row {
            id: values
            Layout.alignment: Qt.AlignRight
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
    }
    RButton {
        RStyleSet.name: root.band.bypass ? "red" : ""
        Layout.preferredWidth: theme.dp(64)
        Layout.leftMargin: root.narrow ? 0 : theme.dp(8)
        text: qsTr("Bypass")
        selected: root.band.bypass
        Accessible.name: qsTr("Bypass filter %1").arg(root.band.label)
        onClicked: root.store.edit(root.index, "bypass", {
            bypass: !root.band.bypass
        })
    }
}
