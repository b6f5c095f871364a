import QtQuick
import TambleClient.Control 1.0

/*! Takes hold of a handle with the mouse or a finger, within a circle around it, and tells how far it is drawn. */
Item {
    id: root

    property bool editable: true
    readonly property alias hovered: mouse.containsMouse
    property bool dragging: false

    // The coordinates of the handle's parent, which stays where it is while the handle moves.
    property point pressedAt
    property point anchor
    /*! Movement made before the anchor. */
    property point carried
    property bool fine: false
    property bool moving: false
    property real lastTap: 0

    signal taken()
    /*! The pointer has come this far from where it took hold, in pixels; slower while `fine`. */
    signal drawn(real dx, real dy)
    signal released()
    signal lost()
    signal doubleTapped()

    /*! Whether the handle is the one meant at a place within the circle, in coordinates of this item. */
    function claims(place: point): bool {
        return true
    }

    function inPlot(x: real, y: real): point {
        return root.mapToItem(root.parent.parent, x, y)
    }

    function take(place: point, fine: bool) {
        root.pressedAt = place
        root.anchor = place
        root.carried = Qt.point(0, 0)
        root.fine = fine
        root.moving = false
        root.dragging = true
        root.taken()
    }

    function follow(place: point, fine: bool) {
        // The tremor of a click moves nothing.
        if (!root.dragging || !root.moving && Math.hypot(place.x - root.pressedAt.x, place.y - root.pressedAt.y) < 3 * RThemeValues.unit)
            return
        root.moving = true
        const pace = root.fine ? 0.1 : 1
        const now = Qt.point(root.carried.x + pace * (place.x - root.anchor.x), root.carried.y + pace * (place.y - root.anchor.y))
        if (fine !== root.fine) {
            root.carried = now
            root.anchor = place
            root.fine = fine
        }
        root.drawn(now.x, now.y)
    }

    function release() {
        if (!root.dragging)
            return
        root.dragging = false
        root.released()
    }

    function abort() {
        if (!root.dragging)
            return
        root.dragging = false
        root.lost()
    }

    width: 44 * RThemeValues.unit
    height: 44 * RThemeValues.unit

    QtObject {
        id: circle

        function contains(place: point): bool {
            return Math.hypot(place.x - root.width / 2, place.y - root.height / 2) <= root.width / 2 && root.claims(place)
        }
    }
    MouseArea {
        id: mouse
        anchors.fill: parent
        containmentMask: circle
        hoverEnabled: RThemeValues.hoverEnabled
        preventStealing: true
        cursorShape: root.editable ? Qt.PointingHandCursor : Qt.ForbiddenCursor
        onPressed: mouse => root.take(root.inPlot(mouse.x, mouse.y), mouse.modifiers & Qt.ShiftModifier)
        onPositionChanged: mouse => root.follow(root.inPlot(mouse.x, mouse.y), mouse.modifiers & Qt.ShiftModifier)
        onReleased: root.release()
        onCanceled: root.abort()
        onDoubleClicked: {
            root.abort()
            root.doubleTapped()
        }
    }
    MultiPointTouchArea {
        anchors.fill: parent
        containmentMask: circle
        mouseEnabled: false
        maximumTouchPoints: 1
        touchPoints: TouchPoint {
            id: finger
        }
        onGestureStarted: gesture => gesture.grab()
        onPressed: root.take(root.inPlot(finger.x, finger.y), false)
        onUpdated: root.follow(root.inPlot(finger.x, finger.y), false)
        onReleased: {
            const now = Date.now()
            const second = !root.moving && now - root.lastTap < Application.styleHints.mouseDoubleClickInterval
            root.lastTap = root.moving || second ? 0 : now
            root.release()
            if (second)
                root.doubleTapped()
        }
        onCanceled: root.abort()
    }
}
