import QtQuick
import TambleClient.Control 1.0

/*! Look, place and gestures of a handle in a plot that its parent fills. What a gesture changes is told by signals and
    up to the kinds of handles. */
FocusScope {
    id: root

    RStyleSet.typeName: "RBodeplotFilterPoint"

    /*! Ranges of the plot; the handle stands at the nearest edge when its values are outside. */
    property real xFrom: -60
    property real xTo: 20
    property real yFrom: -60
    property real yTo: 20
    property real xValue: 0
    property real yValue: 0
    property bool xEnabled: true
    property bool yEnabled: true
    property string label
    property bool errorFlag: false
    property bool readOnly: false
    /*! False while the handle's processor is bypassed. */
    property bool visiblePoint: true
    /*! What the bubble beside the handle shows, and what assistive tools say. */
    property string bubbleText
    property string valueText

    // For assistive tools.
    property real value: root.xEnabled ? root.xValue : root.yValue
    property real minimumValue: root.xEnabled ? Math.min(root.xFrom, root.xTo) : Math.min(root.yFrom, root.yTo)
    property real maximumValue: root.xEnabled ? Math.max(root.xFrom, root.xTo) : Math.max(root.yFrom, root.yTo)
    property real stepSize: 0.5

    readonly property bool selected: root.activeFocus || root.dragging
    readonly property alias dragging: pointer.dragging
    /*! A gesture has changed something and has not ended. */
    property bool changing: false
    property bool keyFocus: false
    property point placeAtPress

    property color ssBackground: root.RStyleSet.props.background
    property color ssBackgroundSelected: root.RStyleSet.props.backgroundSelected
    property color ssBackgroundError: root.RStyleSet.props.backgroundError

    readonly property color stateColor: root.errorFlag ? root.ssBackgroundError : root.selected ? root.ssBackgroundSelected : root.ssBackground

    signal begun()
    /*! The pointer has drawn the handle to this point of the plot, which may lie outside. */
    signal movedTo(real x, real y, bool fine)
    /*! A key asks for this many steps to the right or up. */
    signal stepped(real right, real up, bool fine)
    signal ended()
    signal canceled()
    signal homeRequested()
    signal resetRequested()
    /*! An assistive tool asks for this value. */
    signal valueRequested(real value)

    /*! For assistive tools, which would else write the property. */
    function requestValue(value: var) {
        if (!root.readOnly && !root.dragging)
            root.valueRequested(value)
    }

    function open() {
        if (root.changing)
            return
        root.changing = true
        root.begun()
    }

    function close() {
        keyPause.stop()
        if (!root.changing)
            return
        root.changing = false
        root.ended()
    }

    function cancel() {
        keyPause.stop()
        if (!root.changing)
            return
        root.changing = false
        root.canceled()
    }

    /*! Steps of a key; those of a held one are one gesture. */
    function stepBy(right: real, up: real, fine: bool) {
        root.open()
        root.stepped(right, up, fine)
        keyPause.restart()
    }

    /*! A coordinate or parameter, or a dash where it is no number. */
    function numberText(value: real): string {
        if (!isFinite(value))
            return isNaN(value) ? "–" : value < 0 ? "−∞" : "∞"
        return value.toFixed(1).replace(/^-0\.0$/, "0.0")
    }

    function distanceTo(spot: point): real {
        return Math.hypot(spot.x - root.x - root.width / 2, spot.y - root.y - root.height / 2)
    }

    /*! Of the handles around a place of the plot the nearest one is meant; of those at one point the last. */
    function isMeantAt(spot: point): bool {
        const distance = root.distanceTo(spot)
        let isLater = false
        for (let i = 0; i < root.parent.children.length; ++i) {
            const other = root.parent.children[i] as RPlotHandle
            if (other === root)
                isLater = true
            else if (other && other.visible && other.distanceTo(spot) < distance + (isLater ? 0.5 : -0.5))
                return false
        }
        return true
    }

    RStyleSet.stateHelper.hovered: pointer.hovered
    RStyleSet.stateHelper.pressed: root.dragging
    RStyleSet.stateHelper.disabled: !root.enabled
    RStyleSet.stateHelper.focus: root.activeFocus
    RStyleSet.stateHelper.selected: root.selected
    RStyleSet.stateHelper.readOnly: root.readOnly

    x: parent ? RPlotRules.placeOnAxis(root.xValue, root.xFrom, root.xTo) * parent.width - width / 2 : 0
    y: parent ? (1 - RPlotRules.placeOnAxis(root.yValue, root.yFrom, root.yTo)) * parent.height - height / 2 : 0
    z: bubble.active ? 1 : 0
    width: 16 * RThemeValues.unit
    height: 16 * RThemeValues.unit
    activeFocusOnTab: true
    Accessible.role: Accessible.Slider
    Accessible.name: root.label !== "" ? root.label : qsTr("Handle")
    Accessible.description: root.valueText + (root.errorFlag ? qsTr(", error") : "") + (root.readOnly ? qsTr(", read only") : "")
    Accessible.focusable: true
    Accessible.readOnly: root.readOnly
    Accessible.onIncreaseAction: if (!root.readOnly) root.stepBy(0, 1, false)
    Accessible.onDecreaseAction: if (!root.readOnly) root.stepBy(0, -1, false)

    onActiveFocusChanged: {
        root.keyFocus = root.activeFocus && !root.dragging
        if (!root.dragging)
            root.close()
    }
    Keys.onPressed: event => {
        const known = Qt.ShiftModifier | Qt.ControlModifier | Qt.KeypadModifier
        if (root.readOnly || event.modifiers & ~known || root.dragging && event.key !== Qt.Key_Escape)
            return
        const fine = Boolean(event.modifiers & Qt.ShiftModifier)
        const size = event.modifiers & Qt.ControlModifier ? 10 : 1
        root.keyFocus = !root.dragging
        switch (event.key) {
        case Qt.Key_Right:
            root.stepBy(size, 0, fine)
            break
        case Qt.Key_Left:
            root.stepBy(-size, 0, fine)
            break
        case Qt.Key_Up:
            root.stepBy(0, size, fine)
            break
        case Qt.Key_Down:
            root.stepBy(0, -size, fine)
            break
        case Qt.Key_PageUp:
            root.stepBy(0, 10, fine)
            break
        case Qt.Key_PageDown:
            root.stepBy(0, -10, fine)
            break
        case Qt.Key_Home:
            root.homeRequested()
            break
        case Qt.Key_End:
            root.resetRequested()
            break
        case Qt.Key_Escape:
            if (!root.changing)
                return
            pointer.abort()
            root.cancel()
            break
        default:
            return
        }
        event.accepted = true
    }

    Timer {
        id: keyPause
        interval: 400
        onTriggered: root.close()
    }
    Rectangle {
        anchors.fill: parent
        radius: width / 2
        color: root.visiblePoint ? root.stateColor : "transparent"
        border.width: root.visiblePoint ? 0 : 2 * RThemeValues.unit
        border.color: root.stateColor
    }
    Loader {
        anchors.fill: parent
        anchors.margins: -2 * RThemeValues.unit
        active: root.activeFocus
        sourceComponent: RFocusRectangle {
            radius: width / 2
        }
    }
    // qmllint disable unqualified
    Loader {
        id: bubble
        active: root.bubbleText !== "" && (root.dragging || root.activeFocus && root.keyFocus || pointer.hovered)
        sourceComponent: RHandleBubble {
            handle: root
            text: root.bubbleText
            color: root.errorFlag ? root.ssBackgroundError : root.ssBackgroundSelected
        }
    }
    // qmllint enable unqualified
    RHandlePointer {
        id: pointer

        function claims(place: point): bool {
            return root.isMeantAt(pointer.inPlot(place.x, place.y))
        }

        anchors.centerIn: parent
        editable: !root.readOnly
        onTaken: {
            root.close()
            root.keyFocus = false
            root.placeAtPress = Qt.point(root.x + root.width / 2, root.y + root.height / 2)
            root.forceActiveFocus(Qt.MouseFocusReason)
        }
        onDrawn: (dx, dy) => {
            if (root.readOnly)
                return
            root.open()
            root.movedTo(root.xEnabled ? RPlotRules.levelAtPlace((root.placeAtPress.x + dx) / root.parent.width, root.xFrom, root.xTo) : root.xValue,
                root.yEnabled ? RPlotRules.levelAtPlace(1 - (root.placeAtPress.y + dy) / root.parent.height, root.yFrom, root.yTo) : root.yValue, fine)
        }
        onReleased: root.close()
        onLost: root.cancel()
        onDoubleTapped: if (!root.readOnly) root.resetRequested()
    }
}
