import QtQuick
import TambleClient.Control 1.0

/*! A control of three styled parts, itself one of them, with two colours each. */
Item {
    id: root
    RStyleSet.name: "red"
    property color background: root.RStyleSet.props.color("background")
    property color foreground: root.RStyleSet.props.color("foreground")

    StyledPart {
        RStyleSet.name: "label"
    }
    StyledPart {
        RStyleSet.name: "border"
    }
}
