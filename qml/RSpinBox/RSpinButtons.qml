import QtQuick
import TambleClient.Control 1.0

/*! The two buttons of a spin box, which handles their presses itself. */
Item {
    id: root

    required property RSpinBoxBase field
    readonly property var box: root.field

    x: root.field.mirrored ? 0 : root.field.width - root.width
    width: 2 * root.field.buttonWidth
    height: root.field.height
    visible: root.field.buttonsVisible
    Accessible.ignored: true

    RSpinButton {
        x: root.field.mirrored ? root.field.buttonWidth : 0
        field: root.field
        direction: -1
        color: root.box.ssColor
        possible: root.field.steps.canStepDown
    }
    RSpinButton {
        x: root.field.mirrored ? 0 : root.field.buttonWidth
        field: root.field
        direction: 1
        color: root.box.ssColor
        possible: root.field.steps.canStepUp
    }
}
