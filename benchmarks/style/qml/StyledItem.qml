import QtQuick
import TambleClient.Control 1.0

/*! Three colours from the style sheet. */
Item {
    id: root
    RStyleSet.name: "red"
    property color background: root.RStyleSet.props.color("background")
    property color foreground: root.RStyleSet.props.color("foreground")
    property color line: root.RStyleSet.props.color("line")
}
