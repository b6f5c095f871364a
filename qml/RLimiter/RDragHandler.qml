import QtQuick
import TambleClient.Control 1.0
import "../Shared" as Shared

/*! Draggable handle at a point of a plot, which its parent fills. The page writes what the user changes to its device;
    until that answers, the handle shows the edited point. */
RPlotHandle {
    id: root

    /*! Where a double click or the End key leads; undefined leaves that coordinate. */
    property var defaultX
    property var defaultY
    /*! How long, in ms, the edited point is shown before the page's counts again. */
    property int settleTime: 300

    signal dragged(real x, real y)
    signal dragFinished(real x, real y)
    signal dragCanceled()

    function moveTo(x: real, y: real) {
        const nextX = root.xEnabled ? RPlotRules.limitedValue(x, root.xFrom, root.xTo, 0) : root.xValue
        const nextY = root.yEnabled ? RPlotRules.limitedValue(y, root.yFrom, root.yTo, 0) : root.yValue
        if (isNaN(nextX) || isNaN(nextY) || nextX === root.xValue && nextY === root.yValue)
            return
        xEdit.update(nextX)
        yEdit.update(nextY)
        root.dragged(nextX, nextY)
    }

    valueText: root.xEnabled && root.yEnabled ? qsTr("%1 / %2").arg(root.xValue.toFixed(1)).arg(root.yValue.toFixed(1)) : root.value.toFixed(1)
    bubbleText: root.label !== "" ? root.label : root.valueText

    onBegun: {
        xEdit.begin(root.xValue)
        yEdit.begin(root.yValue)
    }
    onMovedTo: (x, y) => root.moveTo(x, y)
    onStepped: (right, up, fine) => {
        const size = fine ? root.stepSize / 10 : root.stepSize
        const x = root.yEnabled ? right : right + up
        const y = root.xEnabled ? up : right + up
        root.moveTo(RPlotRules.steppedValue(root.xValue, x * size, root.xFrom, root.xTo, size), RPlotRules.steppedValue(root.yValue, y * size, root.yFrom, root.yTo, size))
    }
    onEnded: {
        xEdit.commit()
        yEdit.commit()
        if (root.xValue !== xEdit.valueAtBegin || root.yValue !== yEdit.valueAtBegin)
            root.dragFinished(root.xValue, root.yValue)
    }
    onCanceled: {
        root.moveTo(xEdit.valueAtBegin, yEdit.valueAtBegin)
        xEdit.cancel()
        yEdit.cancel()
        root.dragCanceled()
    }
    onResetRequested: {
        if (root.defaultX === undefined && root.defaultY === undefined)
            return
        root.open()
        root.moveTo(root.defaultX ?? root.xValue, root.defaultY ?? root.yValue)
        root.close()
    }

    Shared.RValueEdit {
        id: xEdit
        target: root
        name: "xValue"
        settleTime: root.settleTime
    }
    Shared.RValueEdit {
        id: yEdit
        target: root
        name: "yValue"
        settleTime: root.settleTime
    }
}
