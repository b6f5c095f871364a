import QtQuick
import TambleClient.Control 1.0

/*! One button of a spin box: a bar, and for "plus" another one across. */
Item {
    id: root

    required property RSpinBoxBase field
    /*! 1 for "plus", -1 for "minus". */
    required property int direction
    /*! Whether there is a step in this direction. */
    required property bool possible

    required property color color
    readonly property real barLength: 10 * RThemeValues.unit
    readonly property real barWidth: Math.max(1, Math.round(1.5 * RThemeValues.unit))

    objectName: root.direction > 0 ? "plus" : "minus"
    width: root.field.buttonWidth
    height: root.field.height
    opacity: !root.possible ? 0.3 : root.field.pressedButton === root.direction ? 0.6 : 1

    Rectangle {
        x: Math.round((root.width - width) / 2)
        y: Math.round((root.height - height) / 2)
        width: root.barLength
        height: root.barWidth
        color: root.color
    }
    Rectangle {
        x: Math.round((root.width - width) / 2)
        y: Math.round((root.height - height) / 2)
        width: root.direction > 0 ? root.barWidth : 0
        height: root.barLength
        color: root.color
    }
}
