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

    // Not made where the row has its room, nor while the view has none yet. Compared anew: while one width changes before
    // the other, `interactive` may still be of before.
    // qmllint disable unqualified
    Repeater {
        parent: root
        model: root.width > 0 && root.contentWidth > root.width ? 2 : 0

        RAppBarArrow {
            required property int index

            view: root
            ground: root.ground
            atRight: index === 1
            onClicked: root.moveBy(atRight ? root.width / 2 : -root.width / 2)
        }
    }
    // qmllint enable unqualified
    WheelHandler {
        enabled: root.interactive
        onWheel: event => root.moveBy(-event.angleDelta.y)
    }
}
