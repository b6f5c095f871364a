import QtQuick
import TambleClient.Control 1.0

/*! A style set that nobody asks for a value. */
Item {
    RStyleSet.name: "red"
    property color background: "#005691"
    property color foreground: "#FFFFFF"
    property color line: "#282828"
}
