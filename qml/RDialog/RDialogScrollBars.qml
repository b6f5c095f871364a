import QtQuick
import "../Shared"

/*! What moves the body of a dialog that has no room for all of it. */
Item {
    id: root

    /*! Whether nothing is to be read right below the body. */
    property bool hasRoomBelow: false
    /*! The bars: `vertical` and `horizontal`. */
    readonly property alias vertical: verticalBar
    readonly property alias horizontal: horizontalBar

    RScrollBar {
        id: verticalBar
        orientation: Qt.Vertical
        anchors.right: parent.right
        height: parent.height
    }
    RScrollBar {
        id: horizontalBar
        orientation: Qt.Horizontal
        y: parent.height - (root.hasRoomBelow ? 0 : height)
        width: parent.width
    }
}
