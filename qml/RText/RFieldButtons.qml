import QtQuick
import TambleClient.Control 1.0

/*! The buttons at the end of a field: one clears it, one shows a text that the echo hides. */
Item {
    id: root

    required property RTextFieldBase field
    readonly property real marksWidth: root.field.edit.marked ? 16 * RThemeValues.unit : 0

    width: (root.field.revealable ? reveal.width : 0) + (root.field.clearable ? clear.width : 0)
    x: root.field.LayoutMirroring.enabled ? root.marksWidth : root.field.width - root.width - root.marksWidth
    height: root.field.height

    RFieldButton {
        id: reveal
        objectName: "reveal"
        height: root.height
        visible: root.field.revealable
        iconKey: root.field.echoMode === TextInput.Normal ? "eye-off" : "eye"
        iconColor: root.field.color
        label: qsTr("Show the text")
        activeFocusOnTab: true
        onClicked: root.field.reveal(root.field.echoMode !== TextInput.Normal)
    }
    RFieldButton {
        id: clear
        objectName: "clear"
        x: root.field.revealable ? reveal.width : 0
        height: root.height
        visible: root.field.clearable
        iconKey: root.field.length > 0 && !root.field.readOnly ? "clear" : ""
        enabled: root.field.length > 0 && !root.field.readOnly
        iconColor: root.field.color
        label: qsTr("Clear")
        onClicked: root.field.clearByUser()
    }
}
