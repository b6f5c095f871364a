import QtQuick
import TambleClient.Control 1.0

/*! A part of a control: two colours, which change with the state of the control around it. */
Item {
    id: root
    property color foreground: root.RStyleSet.props.color("foreground")
    property color line: root.RStyleSet.props.color("line")
}
