import QtQuick
import TambleClient.Control 1.0

/*! Chooses one of the built-in themes. */
RButtonRow {
    id: root

    readonly property list<string> words: ["light", "dark", "contrast-light", "contrast-dark"]
    readonly property int currentIndex: root.words.indexOf(theme.stylesheet)
    readonly property string next: root.words[(root.currentIndex + 1) % root.words.length]

    signal chosen(string word)

    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Theme")

    // qmllint disable unqualified
    Repeater {
        model: root.words

        RButton {
            required property int index
            required property string modelData

            width: theme.dp(96)
            text: modelData
            selected: root.currentIndex === index
            onClicked: root.chosen(modelData)
        }
    }
    // qmllint enable unqualified
}
