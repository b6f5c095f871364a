import QtQuick
import TambleClient.Control 1.0

/*! One type as its picture shows it, on the ground of a window. */
Rectangle {
    id: root
    RStyleSet.typeName: "RScreen2"

    /*! Of the type, and of the picture's file. */
    required property string name
    /*! What the picture shows; a popup is not in here. */
    property Item shown: root
    default property alias content: row.data

    property color ssBackground: root.RStyleSet.props.background

    implicitWidth: row.implicitWidth + theme.dp(24)
    implicitHeight: row.implicitHeight + theme.dp(24)
    color: root.ssBackground

    Row {
        id: row
        x: theme.dp(12)
        y: theme.dp(12)
        spacing: theme.dp(8)
    }
}
