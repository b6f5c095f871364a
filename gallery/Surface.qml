import QtQuick
import TambleClient.Control 1.0

/*! Area in the colours of the rule group that its user names with `RStyleSet.typeName`. */
Rectangle {
    id: root

    property color ssBackground: root.RStyleSet.props.background
    property color ssBorderColor: root.RStyleSet.props.isSet("border") ? root.RStyleSet.props.border : "transparent"

    color: root.ssBackground
    border.width: root.ssBorderColor.a > 0 ? theme.dp(1) : 0
    border.color: root.ssBorderColor
    Accessible.ignored: true
}
