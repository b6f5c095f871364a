import QtQuick
import TambleClient.Control 1.0

/*! A setting behind its caption. */
Flow {
    id: root

    required property string title
    default property alias content: place.data

    readonly property bool wide: root.width >= theme.dp(560)

    width: parent?.width ?? 0
    spacing: theme.dp(8)

    RText {
        width: theme.dp(80)
        height: theme.dp(32)
        text: root.title
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideRight
    }
    Item {
        id: place
        width: root.wide ? root.width - theme.dp(96) : root.width
        height: childrenRect.height
    }
}
