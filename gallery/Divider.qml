import QtQuick
import TambleClient.Control 1.0

/*! Fine line between two areas. */
Rectangle {
    id: root

    property color ssBorderColor: root.RStyleSet.props.popupBorderColor

    RStyleSet.typeName: "RPopupMenu"
    implicitWidth: theme.dp(1)
    implicitHeight: theme.dp(1)
    color: root.ssBorderColor
    Accessible.ignored: true
}
