import QtQuick
import TambleClient.Control 1.0

/*! What stands before and after the number of a spin box. */
Item {
    id: root

    required property RSpinBoxBase field
    readonly property TextInput input: root.field.edit.editor as TextInput
    readonly property real gap: 4 * RThemeValues.unit

    height: root.field.height
    visible: root.field.edit.consistent
    Accessible.ignored: true

    RText {
        id: prefix
        x: root.input.x + 8 * RThemeValues.unit
        height: root.height
        text: root.field.prefix
        color: root.input.color
        verticalAlignment: Text.AlignVCenter
    }
    RText {
        x: Math.min(root.input.x + root.input.leftPadding + root.input.contentWidth, root.input.x + root.input.width - width) + root.gap
        height: root.height
        text: root.field.suffix.trim()
        color: root.input.color
        verticalAlignment: Text.AlignVCenter
    }
    Binding {
        target: root.input
        property: "leftPadding"
        value: 8 * RThemeValues.unit + (root.field.prefix === "" ? 0 : prefix.implicitWidth)
    }
}
