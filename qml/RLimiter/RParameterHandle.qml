import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Handle of one parameter of a dynamics panel. Keys step the parameter, the pointer moves its point of the plot. */
RLevelHandle {
    id: root

    required property RDynamicsPlot plot
    /*! The object that holds the parameter with its bounds, called `name`, `name`Min and `name`Max. */
    required property QtObject target
    required property string name
    property var defaultValue
    property string unit: "dB"
    /*! Rounding while dragging, and with Shift; 0 for none. */
    property real step: root.plot.dragStep
    property real fineStep: root.step / 5

    readonly property real minimum: root.bound("Min")
    readonly property real maximum: root.bound("Max")
    readonly property string shown: root.numberText(root.value)

    signal edited(real value)
    signal committed(real value)

    /*! A bound, and anew when the parameter itself is announced: some bounds have only that signal. */
    function bound(end: string): real {
        return [root.target[root.name], root.target[root.name + end]][1]
    }

    /*! Value of the parameter for a point of the plot; each handle has its own rule. */
    function valueAt(x: real, y: real): real {
        return x
    }

    function edit(value: real) {
        if (isNaN(value) || value === root.value)
            return
        valueEdit.show(value)
        root.edited(value)
    }

    /*! A change that is complete in itself. */
    function editAtOnce(value: real) {
        root.open()
        root.edit(RPlotRules.limitedValue(value, root.minimum, root.maximum, 0))
        root.close()
    }

    objectName: root.name
    xFrom: root.plot.xFrom
    xTo: root.plot.xTo
    yFrom: root.plot.yFrom
    yTo: root.plot.yTo
    readOnly: root.plot.readOnly
    visiblePoint: !root.plot.bypassed && root.enabled
    visible: root.plot.handlesVisible && Math.abs(root.maximum - root.minimum) > 0
    value: root.target[root.name]
    minimumValue: Math.min(root.minimum, root.maximum)
    maximumValue: Math.max(root.minimum, root.maximum)
    stepSize: Math.abs(root.step) || Math.abs(root.maximum - root.minimum) / 100
    valueText: qsTr("%1 %2").arg(root.shown).arg(root.unit)
    bubbleText: qsTr("%1 %2").arg(root.label).arg(root.valueText)

    onBegun: valueEdit.begin()
    onDrawnTo: (x, y, fine) => root.edit(RPlotRules.limitedValue(root.valueAt(x, y), root.minimum, root.maximum, fine ? root.fineStep : root.step))
    onStepped: (right, up, fine) => {
        // A step of Shift is the fine one, which a handle may have chosen for itself.
        const size = fine ? Math.abs(root.fineStep) * 5 || root.stepSize : root.stepSize
        root.edit(RPlotRules.steppedValue(root.value, (right + up) * size, root.minimum, root.maximum, Math.abs(fine ? root.fineStep : root.step)))
    }
    onEnded: {
        if (root.value !== valueEdit.valueAtBegin)
            root.committed(root.value)
        valueEdit.commit()
    }
    onCanceled: {
        root.edit(valueEdit.valueAtBegin)
        root.plot.editCanceled()
        valueEdit.commit()
    }
    onResetRequested: {
        if (root.defaultValue !== undefined)
            root.editAtOnce(root.defaultValue)
    }
    onValueRequested: value => root.editAtOnce(value)

    RPendingValue {
        id: valueEdit
        target: root.target
        name: root.name
        settleTime: root.plot.settleTime
    }
}
