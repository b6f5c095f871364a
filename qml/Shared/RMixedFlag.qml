import QtQuick
import TambleClient.Control 1.0

/*! Triangle in the top left corner of a field on which several devices do not agree. */
Item {
    id: root

    property alias color: square.color

    width: 8 * RThemeValues.unit
    height: root.width
    clip: true

    // The triangle is the quarter of a square that stands on its tip.
    Rectangle {
        id: square
        x: -square.width / 2
        y: -square.width / 2
        width: root.width * Math.SQRT2
        height: square.width
        rotation: 45
        antialiasing: true
    }
}
