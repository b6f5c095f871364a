import QtQuick
import TambleClient.Control 1.0

/*! Triangle in the top left corner of a field on which several devices do not agree; the top right one when mirrored. */
Item {
    id: root

    property alias color: square.color
    property bool mirrored: false

    width: 8 * RThemeValues.unit
    height: root.width
    clip: true

    // The triangle is the quarter of a square that stands on its tip.
    Rectangle {
        id: square
        x: (root.mirrored ? root.width : 0) - square.width / 2
        y: -square.width / 2
        width: root.width * Math.SQRT2
        height: square.width
        rotation: 45
        antialiasing: true
    }
}
