import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! What shows and moves the place of a workspace's view. */
Item {
    id: root

    required property RWorkspaceCanvas canvas

    width: root.canvas.width
    height: root.canvas.height

    RScrollBar {
        y: root.height - height
        width: root.width - right.width
        orientation: Qt.Horizontal
        size: root.canvas.scrollSpan.width
        position: root.canvas.scrollSpan.x
        onPositionChanged: {
            if (pressed)
                root.canvas.scrollHorizontally(position)
        }
    }
    RScrollBar {
        id: right
        x: root.width - width
        height: root.height - width
        orientation: Qt.Vertical
        size: root.canvas.scrollSpan.height
        position: root.canvas.scrollSpan.y
        onPositionChanged: {
            if (pressed)
                root.canvas.scrollVertically(position)
        }
    }
}
