import QtQuick
import QtQuick.Templates as T
import TambleClient.Control 1.0

/*! Scroll bar that shows only while there is something to scroll. */
T.ScrollBar {
    id: root

    property color ssLineColor: root.RStyleSet.props.line

    RStyleSet.typeName: "RTabButton"
    implicitWidth: theme.dp(8)
    implicitHeight: theme.dp(8)
    padding: theme.dp(1)
    minimumSize: 0.05
    visible: root.size < 1

    contentItem: Rectangle {
        implicitWidth: theme.dp(6)
        implicitHeight: theme.dp(6)
        radius: theme.dp(3)
        color: root.ssLineColor
    }
}
