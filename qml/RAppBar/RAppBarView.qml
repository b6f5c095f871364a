import QtQuick
import TambleClient.Control 1.0

/*! Row that is flicked sideways where it is wider than its room; arrows at its ends tell that there is more. */
Flickable {
    id: root

    /*! Colour of what the row stands on. */
    property color ground: "transparent"

    /*! Moves on by pixels, no further than to an end. */
    function moveBy(way: real) {
        root.contentX = Math.max(0, Math.min(root.contentWidth - root.width, root.contentX + way))
    }

    contentHeight: root.height
    interactive: root.contentWidth > root.width
    clip: root.interactive
    flickableDirection: Flickable.HorizontalFlick
    boundsBehavior: Flickable.StopAtBounds
    // A wider room leaves no gap at the end.
    onWidthChanged: root.returnToBounds()
    onContentWidthChanged: root.returnToBounds()

    RAppBarArrow {
        parent: root
        view: root
        ground: root.ground
        onClicked: root.moveBy(-root.width / 2)
    }
    RAppBarArrow {
        parent: root
        view: root
        ground: root.ground
        atRight: true
        onClicked: root.moveBy(root.width / 2)
    }
    WheelHandler {
        enabled: root.interactive
        onWheel: event => root.moveBy(-event.angleDelta.y)
    }
}
