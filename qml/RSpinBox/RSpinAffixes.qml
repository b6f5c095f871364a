import QtQuick
import TambleClient.Control 1.0

/*! What stands before and after the number of a spin box. */
Item {
    id: root

    required property RSpinBoxBase field
    readonly property TextInput input: root.field.edit.editor as TextInput
    readonly property real gap: 4 * RThemeValues.unit
    /*! What the marks take of the number's room: at its beginning and at its end. */
    readonly property real start: (root.field.edit.marked && root.field.mirrored ? 24 : 8) * RThemeValues.unit
    readonly property real end: (root.field.edit.marked && !root.field.mirrored ? 24 : 4) * RThemeValues.unit

    height: root.field.height
    visible: root.field.edit.consistent
    Accessible.ignored: true

    RText {
        id: prefix
        x: root.input.x + root.start
        height: root.height
        text: root.field.prefix
        color: root.input.color
        verticalAlignment: Text.AlignVCenter
    }
    RText {
        id: suffix
        x: root.input.x + Math.min(root.input.leftPadding + root.input.contentWidth, root.input.width - root.input.rightPadding) + root.gap
        height: root.height
        text: root.field.suffix.trim()
        color: root.input.color
        verticalAlignment: Text.AlignVCenter
    }
    Binding {
        target: root.input
        property: "rightPadding"
        value: root.end + (root.field.suffix === "" || !root.field.edit.consistent ? 0 : root.gap + suffix.implicitWidth)
    }
    Binding {
        target: root.input
        property: "leftPadding"
        value: root.start + (root.field.prefix === "" ? 0 : prefix.implicitWidth)
    }
}
