import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! Chooses one of the built-in themes. */
Flow {
    id: root

    readonly property var titles: ({ light: qsTr("Light"), dark: qsTr("Dark"), "contrast-light": qsTr("Contrast light"), "contrast-dark": qsTr("Contrast dark") })

    spacing: Math.max(1, Math.round(theme.dp(1)))
    Accessible.role: Accessible.Grouping
    Accessible.name: qsTr("Theme")

    // qmllint disable unqualified
    Repeater {
        model: Festival.themes

        RButton {
            required property string modelData

            width: theme.dp(112)
            text: root.titles[modelData]
            selected: theme.stylesheet === modelData
            onClicked: Festival.themeChosen(modelData)
        }
    }
    // qmllint enable unqualified
}
