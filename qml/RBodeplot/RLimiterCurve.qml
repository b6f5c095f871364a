import QtQuick
import TambleClient.Control 1.0
import "../Shared" as Shared

/*! Threshold of a limiter in a plot frame, with a handle to move it. The page writes what the user changes to its
    device; until that answers, the curve shows the edited threshold. */
RLimiterCurveTemplate {
    id: root

    RStyleSet.typeName: "RLimiterCurve"

    property bool handleVisible: true
    readonly property alias handle: point
    property string label
    /*! Step of the arrow keys and of dragging, in dB; a tenth of it with Shift, 0 for no steps while dragging. */
    property real stepSize: 0.5
    /*! Threshold that a double click on the handle sets; undefined for none. */
    property var defaultThreshold
    property alias settleTime: edit.settleTime
    readonly property bool editing: edit.active

    /*! Tells the ranges and scales, as far as it has properties of these names. */
    readonly property var frame: root.parent

    property color ssCurve: root.RStyleSet.props.curve
    property color ssBypassCurve: root.RStyleSet.props.bypassCurve

    /*! The user moves the threshold. */
    signal userChangedThreshold(real threshold)
    /*! The user has finished moving it. */
    signal userCommittedThreshold(real threshold)

    function moveTo(threshold: real) {
        if (isNaN(threshold) || threshold === root.threshold)
            return
        edit.update(threshold)
        root.userChangedThreshold(threshold)
    }

    /*! One finished change, as a key makes it. */
    function commitTo(threshold: real) {
        edit.begin(root.threshold)
        root.moveTo(threshold)
        root.commit()
    }

    function commit() {
        edit.commit()
        if (!isNaN(root.threshold) && root.threshold !== edit.valueAtBegin)
            root.userCommittedThreshold(root.threshold)
    }

    function cancel() {
        root.moveTo(edit.valueAtBegin)
        edit.cancel()
    }

    anchors.fill: parent
    xMinimum: root.frame?.xMinimum ?? 20
    xMaximum: root.frame?.xMaximum ?? 20000
    yMinimum: root.frame?.yMinimum ?? -18
    yMaximum: root.frame?.yMaximum ?? 18
    xAxisScale: root.frame?.xAxisScale ?? RBodeplotAxisScaleEnum.LOGARITHMIC

    style: QtObject {
        readonly property color curveColor: root.ssCurve
        readonly property real curveLineWidth: 2 * RThemeValues.unit
        readonly property color bypassCurveColor: root.ssBypassCurve
        readonly property real bypassCurveLineWidth: RThemeValues.unit
    }

    Shared.RValueEdit {
        id: edit
        target: root
        name: "threshold"
    }
    RLimiterFilterPoint {
        id: point

        readonly property real value: root.threshold
        readonly property real minimumValue: root.yMinimum
        readonly property real maximumValue: root.yMaximum
        readonly property real stepSize: root.stepSize

        x: root.width * root.handlePoint.x - width / 2
        y: root.height * root.handlePoint.y - height / 2
        width: implicitWidth
        height: implicitHeight
        visible: root.handleVisible
        activeFocusOnTab: true
        label: root.label
        gain: root.threshold
        selected: activeFocus || pointer.dragging
        visiblePoint: !root.bypass
        showQuality: pointer.dragging
        Accessible.onIncreaseAction: root.commitTo(root.thresholdMovedBy(root.stepSize))
        Accessible.onDecreaseAction: root.commitTo(root.thresholdMovedBy(-root.stepSize))

        Keys.onPressed: event => {
            const coarse = event.modifiers & Qt.ControlModifier || event.key === Qt.Key_PageUp || event.key === Qt.Key_PageDown
            const step = root.stepSize * (event.modifiers & Qt.ShiftModifier ? 0.1 : coarse ? 10 : 1)
            switch (event.key) {
            case Qt.Key_Up:
            case Qt.Key_Right:
            case Qt.Key_PageUp:
                root.commitTo(root.thresholdMovedBy(step))
                break
            case Qt.Key_Down:
            case Qt.Key_Left:
            case Qt.Key_PageDown:
                root.commitTo(root.thresholdMovedBy(-step))
                break
            case Qt.Key_Escape:
                if (pointer.dragging) {
                    pointer.cancelDrag()
                    break
                }
                return
            default:
                return
            }
            event.accepted = true
        }

        MouseArea {
            id: pointer

            property bool dragging: false
            property bool fine: false
            // Where the handle and the pointer were when the drag began, or went over to the other pace.
            property point handleAnchor
            property point pointerAnchor

            function takeHold(place: point) {
                handleAnchor = root.handlePoint
                pointerAnchor = place
            }

            function cancelDrag() {
                dragging = false
                root.cancel()
            }

            anchors.centerIn: parent
            width: 44 * RThemeValues.unit
            height: 44 * RThemeValues.unit
            containmentMask: Shared.RCircleMask {
                area: pointer
            }
            preventStealing: true
            onPressed: mouse => {
                point.forceActiveFocus(Qt.MouseFocusReason)
                fine = mouse.modifiers & Qt.ShiftModifier
                takeHold(mapToItem(root, mouse.x, mouse.y))
                edit.begin(root.threshold)
                dragging = true
            }
            onPositionChanged: mouse => {
                if (!dragging)
                    return
                const place = mapToItem(root, mouse.x, mouse.y)
                if (fine !== Boolean(mouse.modifiers & Qt.ShiftModifier)) {
                    fine = !fine
                    takeHold(place)
                }
                const pace = fine ? 0.1 : 1
                const wanted = Qt.point(handleAnchor.x + pace * (place.x - pointerAnchor.x) / root.width, handleAnchor.y + pace * (place.y - pointerAnchor.y) / root.height)
                if (place !== pointerAnchor)
                    root.moveTo(root.thresholdNear(wanted, pace * root.stepSize))
            }
            onReleased: {
                if (dragging)
                    root.commit()
                dragging = false
            }
            onCanceled: {
                if (dragging)
                    cancelDrag()
            }
            onDoubleClicked: {
                if (root.defaultThreshold === undefined)
                    return
                dragging = false
                root.commitTo(root.defaultThreshold)
            }
        }
    }
}
