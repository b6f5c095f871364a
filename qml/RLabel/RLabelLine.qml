import QtQuick
import TambleClient.Control 1.0

/*! The line along the bottom of a caption, which colours it. */
Rectangle {
    id: root

    y: root.parent.height - root.height
    width: root.parent.width
    height: RThemeValues.unit
}
