import QtQuick
import TambleClient.Control 1.0

/*! A value, the text that a converter makes of it, and what it reads from a typed one. */
Column {
    id: root

    required property string title
    required property RValueConverter converter
    property var value

    spacing: theme.dp(4)

    RLabel {
        width: parent.width
        text: root.title
        buddy: field
    }
    RTextField {
        id: field
        width: parent.width
        value: root.value
        converter: root.converter
        onValueEdited: value => root.value = value
    }
    RText {
        width: parent.width
        height: theme.dp(36)
        text: field.acceptable ? qsTr("Value %1").arg(String(root.value)) : field.invalidText
        elide: Text.ElideRight
        font.pixelSize: theme.fontSizeS
    }
}
