import QtQuick
import TambleClient.Control 1.0

/*! A field with a validator, and what it says about the text. */
Column {
    id: root

    required property string title
    property alias validator: field.validator
    property alias text: field.text
    property alias maximumBytes: field.maximumBytes

    spacing: theme.dp(4)

    RLabel {
        width: parent.width
        text: root.title
        buddy: field
    }
    RTextField {
        id: field
        width: parent.width
        commitOnFocusLoss: false
    }
    RText {
        width: parent.width
        height: theme.dp(36)
        text: field.acceptable ? qsTr("Acceptable") : field.invalidText
        wrapMode: Text.Wrap
        font.pixelSize: theme.fontSizeS
    }
}
