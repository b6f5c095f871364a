import QtQuick
import TambleClient.Control 1.0
import "BandRules.js" as Rules

/*! A word of a filter between the buttons that lead to the next ones. */
Column {
    id: root

    required property string key
    required property string name
    required property var band

    readonly property string text: Rules.has(root.band, root.key) ? Rules.text(root.band, root.key) : ""

    signal stepped(real value)

    function step(direction: int) {
        root.stepped(Rules.steppedWord(root.band, root.key, direction))
    }

    function canStep(direction: int): bool {
        return Rules.has(root.band, root.key) && Rules.steppedWord(root.band, root.key, direction) !== root.band[root.key]
    }

    spacing: theme.dp(4)
    Accessible.role: Accessible.Grouping
    Accessible.name: root.name
    Accessible.description: root.text

    RLabel {
        width: parent.width
        text: root.name
        horizontalAlignment: Text.AlignHCenter
    }
    RButtonRow {
        RButtonIcon {
            width: theme.dp(28)
            enabled: root.canStep(-1)
            label: qsTr("%1 down").arg(root.name)
            iconItem.key: "minus"
            iconItem.sizeClass: "XS"
            autoRepeat: true
            onClicked: root.step(-1)
        }
        RText {
            width: root.width - theme.dp(58)
            height: parent.height
            text: root.text
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignHCenter
            verticalAlignment: Text.AlignVCenter
            font.bold: true
            Accessible.role: Accessible.StaticText
            Accessible.name: text
        }
        RButtonIcon {
            width: theme.dp(28)
            enabled: root.canStep(1)
            label: qsTr("%1 up").arg(root.name)
            iconItem.key: "plus"
            iconItem.sizeClass: "XS"
            autoRepeat: true
            onClicked: root.step(1)
        }
    }
}
