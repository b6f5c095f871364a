import QtQuick
import TambleClient.Control 1.0

/*! Threshold of a limiter in a plot frame, with a handle to move it. The page writes what the user changes to its
    device; until that answers, the curve shows the edited threshold.

    Keys: arrows move the threshold by `stepSize`, a fifth of it with Shift; Ctrl, PageUp and PageDown by six; End leads
    to `defaultThreshold`, Esc takes the gesture back. */
RLimiterCurveTemplate {
    id: root

    RStyleSet.typeName: "RLimiterCurve"

    /*! Whether there is a handle. */
    property bool handleVisible: true
    /*! The handle of the threshold. */
    readonly property alias handle: point
    /*! Up to three letters on the handle, and its name. */
    property string label
    /*! Step of the arrow keys and of dragging, in dB; a fifth of it with Shift, 0 for no steps while dragging. */
    property real stepSize: 0.5
    /*! Threshold that a double click on the handle sets; undefined for none. */
    property var defaultThreshold
    /*! How long, in ms, an edit is shown before the page's threshold counts again. */
    property alias settleTime: edit.settleTime
    /*! Whether an edit is shown. */
    readonly property bool editing: edit.active

    /*! Tells the ranges and scales, as far as it has properties of these names. */
    readonly property var frame: root.parent

    property color ssCurve: root.RStyleSet.props.curve
    property color ssBypassCurve: root.RStyleSet.props.bypassCurve

    /*! The user moves the threshold. */
    signal userChangedThreshold(real threshold)
    /*! The user has finished moving it. */
    signal userCommittedThreshold(real threshold)

    /*! Shows this threshold (dB) as a part of the gesture under way and tells it to the page; NaN does nothing. */
    function moveTo(threshold: real) {
        if (isNaN(threshold) || threshold === root.threshold)
            return
        edit.show(threshold)
        root.userChangedThreshold(threshold)
    }

    /*! Ends the gesture under way. */
    function commit() {
        if (!isNaN(root.threshold) && root.threshold !== edit.valueAtBegin)
            root.userCommittedThreshold(root.threshold)
        edit.commit()
    }

    /*! Ends it with the threshold of before. */
    function cancel() {
        root.moveTo(edit.valueAtBegin)
        edit.commit()
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

    RPendingValue {
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

        place: Qt.point(root.width * root.handlePoint.x, root.height * root.handlePoint.y)
        visible: root.handleVisible
        label: root.label
        gain: root.threshold
        visiblePoint: !root.bypass
        Accessible.onIncreaseAction: point.stepBy(0, 1)
        Accessible.onDecreaseAction: point.stepBy(0, -1)
        onBegun: edit.begin()
        onMovedTo: (x, y, fine) => root.moveTo(root.thresholdNear(Qt.point(x / root.width, y / root.height), fine ? root.stepSize / 5 : root.stepSize))
        onStepped: (right, up) => root.moveTo(root.thresholdMovedBy((right + up) * root.stepSize))
        onPaged: up => root.moveTo(root.thresholdMovedBy(6 * up * root.stepSize))
        onEnded: root.commit()
        onCanceled: root.cancel()
        onResetRequested: {
            if (root.defaultThreshold === undefined)
                return
            point.open()
            root.moveTo(root.defaultThreshold)
            point.close()
        }
    }
}
