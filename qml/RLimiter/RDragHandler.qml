import QtQuick
import TambleClient.Control 1.0

/*! Draggable handle at a point of a plot, which its parent fills. The page writes what the user changes to its device;
    until that answers, the handle shows the edited point.

    Keys: arrows move by `stepSize`, a fifth of it with Shift; Ctrl, PageUp and PageDown by six; End leads to `defaultX`
    and `defaultY`, Esc takes the gesture back. */
RLevelHandle {
    id: root

    /*! Where a double click or the End key leads, `defaultX` and `defaultY` in dB; undefined leaves that
        coordinate. */
    property var defaultX
    property var defaultY
    /*! How long, in ms, the edited point is shown before the page's counts again. */
    property int settleTime: 300

    /*! The user moves the handle to a point (`dragged`), has finished (`dragFinished`) or has taken the gesture back
        (`dragCanceled`). */
    signal dragged(real x, real y)
    signal dragFinished(real x, real y)
    signal dragCanceled()

    /*! Moves the handle to this point as a part of the gesture under way, within the plot. */
    function moveTo(x: real, y: real) {
        root.edit(root.xEnabled ? RPlotRules.limitedValue(x, root.xFrom, root.xTo, 0) : root.xValue,
            root.yEnabled ? RPlotRules.limitedValue(y, root.yFrom, root.yTo, 0) : root.yValue)
    }

    /*! Shows the point and tells it to the page. */
    function edit(x: real, y: real) {
        if (isNaN(x) || isNaN(y) || x === root.xValue && y === root.yValue)
            return
        xEdit.show(x)
        yEdit.show(y)
        root.dragged(x, y)
    }

    /*! Ends the edit: the page's point counts again when it has answered. */
    function commit() {
        xEdit.commit()
        yEdit.commit()
    }

    /*! A change that is complete in itself. */
    function moveAtOnce(x: real, y: real) {
        root.open()
        root.moveTo(x, y)
        root.close()
    }

    /*! A coordinate this many steps further. */
    function steppedValue(value: real, count: real, fine: bool, from: real, to: real): real {
        const step = Math.abs(root.stepSize) || Math.abs(to - from) / 100
        return RPlotRules.steppedValue(value, count * step, from, to, Math.abs(root.stepSize) > 0 ? (fine ? step / 5 : step) : 0)
    }

    valueText: root.xEnabled && root.yEnabled ? qsTr("%1 / %2").arg(root.numberText(root.xValue)).arg(root.numberText(root.yValue)) : root.numberText(root.value)
    bubbleText: root.label !== "" ? root.label : root.valueText

    onBegun: {
        xEdit.begin()
        yEdit.begin()
    }
    onDrawnTo: (x, y) => root.moveTo(x, y)
    onStepped: (right, up, fine) => {
        const x = root.yEnabled ? right : right + up
        const y = root.xEnabled ? up : right + up
        root.moveTo(root.steppedValue(root.xValue, x, fine, root.xFrom, root.xTo), root.steppedValue(root.yValue, y, fine, root.yFrom, root.yTo))
    }
    onEnded: {
        if (root.xValue !== xEdit.valueAtBegin || root.yValue !== yEdit.valueAtBegin)
            root.dragFinished(root.xValue, root.yValue)
        root.commit()
    }
    onCanceled: {
        root.edit(xEdit.valueAtBegin, yEdit.valueAtBegin)
        root.dragCanceled()
        root.commit()
    }
    onResetRequested: {
        if (root.defaultX === undefined && root.defaultY === undefined)
            return
        root.moveAtOnce(root.defaultX ?? root.xValue, root.defaultY ?? root.yValue)
    }
    onValueRequested: value => root.moveAtOnce(root.xEnabled ? value : root.xValue, root.xEnabled ? root.yValue : value)

    RPendingValue {
        id: xEdit
        target: root
        name: "xValue"
        settleTime: root.settleTime
    }
    RPendingValue {
        id: yEdit
        target: root
        name: "yValue"
        settleTime: root.settleTime
    }
}
