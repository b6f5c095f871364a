import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Handle in a plot of levels, which its parent fills. What a gesture changes is told by signals and up to the kinds of
    handles. */
RPlotHandle {
    id: root

    /*! Ranges of the plot, `xFrom` to `xTo` and `yFrom` to `yTo` in dB; the handle stands at the nearest edge when its
        values are outside. */
    property real xFrom: -60
    property real xTo: 20
    property real yFrom: -60
    property real yTo: 20
    /*! The point of the plot, in dB: `xValue` along the x axis, `yValue` along the y axis. */
    property real xValue: 0
    property real yValue: 0
    /*! Whether the handle moves sideways (`xEnabled`) and up and down (`yEnabled`). */
    property bool xEnabled: true
    property bool yEnabled: true

    // For assistive tools.
    /*! For assistive tools: `value`, `minimumValue` and `maximumValue` of the coordinate that moves, x when both
        do. */
    property real value: root.xEnabled ? root.xValue : root.yValue
    property real minimumValue: root.xEnabled ? Math.min(root.xFrom, root.xTo) : Math.min(root.yFrom, root.yTo)
    property real maximumValue: root.xEnabled ? Math.max(root.xFrom, root.xTo) : Math.max(root.yFrom, root.yTo)
    /*! Step of the arrow keys, a fifth of it with Shift; 0 for a hundredth of the range. */
    property real stepSize: 0.5

    /*! The pointer has drawn the handle to these levels, which may lie outside. */
    signal drawnTo(real x, real y, bool fine)
    /*! An assistive tool asks for this value. */
    signal valueRequested(real value)

    /*! For assistive tools, which would else write the property. */
    function requestValue(value: var) {
        if (!root.readOnly && !root.dragging)
            root.valueRequested(value)
    }

    /*! A coordinate or parameter, or a dash where it is no number. */
    function numberText(value: real): string {
        if (!isFinite(value))
            return isNaN(value) ? "–" : value < 0 ? "−∞" : "∞"
        return value.toFixed(1).replace(/^-0\.0$/, "0.0")
    }

    place: root.parent ? Qt.point(RPlotRules.placeOf(root.xValue, root.xFrom, root.xTo) * root.parent.width,
        (1 - RPlotRules.placeOf(root.yValue, root.yFrom, root.yTo)) * root.parent.height) : Qt.point(0, 0)
    discSize: 16 * RThemeValues.unit
    activeFocusOnTab: true
    Accessible.name: root.label !== "" ? root.label : qsTr("Handle")
    Accessible.onIncreaseAction: if (!root.readOnly) root.stepBy(0, 1)
    Accessible.onDecreaseAction: if (!root.readOnly) root.stepBy(0, -1)

    onMovedTo: (x, y, fine) => root.drawnTo(root.xEnabled ? RPlotRules.levelAt(x / root.parent.width, root.xFrom, root.xTo) : root.xValue,
        root.yEnabled ? RPlotRules.levelAt(1 - y / root.parent.height, root.yFrom, root.yTo) : root.yValue, fine)
    onPaged: up => root.stepped(0, 6 * up, false)
}
