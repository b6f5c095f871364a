import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

// The plot is 240 pixels wide and high, 3 pixels per unit.
ThemedTestCase {
    id: root
    name: "RDragHandler"

    function make(body: string): var {
        const plot = createTemporaryQmlObject("import QtQuick\nimport TambleClient.Control 1.0\nItem { width: 240; height: 240\nproperty real device: -20; readonly property Item handle: h\nRDragHandler { id: h; " + body + "} }", root)
        return plot.handle
    }

    function logOf(handle: Item): var {
        return logged(handle, { dragged: "dragged", dragFinished: "finished", dragCanceled: "canceled", resetRequested: "reset" })
    }

    function test_place_data() {
        return [
            { tag: "inside", body: "xValue: -20; yValue: 10", x: 120, y: 30 },
            { tag: "nearest edge", body: "xValue: 50; yValue: -90", x: 240, y: 240 },
            { tag: "backwards", body: "xFrom: 20; xTo: -60; xValue: 0", x: 60, y: 60 },
            { tag: "no number", body: "xValue: NaN; yValue: NaN", x: 0, y: 240 },
            { tag: "no range", body: "xFrom: 5; xTo: 5; yFrom: NaN", x: 0, y: 240 },
        ]
    }
    function test_place(data) {
        const handle = make(data.body)
        compare([handle.x + 8, handle.y + 8], [data.x, data.y])
    }

    function test_drag_data() {
        return [
            { tag: "both", body: "", log: ["dragged 10 -10", "finished 10 -10"] },
            { tag: "x", body: "yEnabled: false", log: ["dragged 10 0", "finished 10 0"] },
            { tag: "y", body: "xEnabled: false", log: ["dragged 0 -10", "finished 0 -10"] },
            { tag: "to the edge", body: "xTo: 5; xFrom: -75", log: ["dragged 5 -10", "finished 5 -10"] },
            { tag: "nowhere", body: "xEnabled: false; yEnabled: false", log: [] },
            { tag: "read only", body: "readOnly: true", log: [] },
        ]
    }
    function test_drag(data) {
        const handle = make(data.body)
        const log = logOf(handle)
        const plot = handle.parent
        const centre = Qt.point(handle.x + 8, handle.y + 8)
        // Taken off its centre: the handle keeps that distance.
        mousePress(plot, centre.x + 5, centre.y + 3)
        compare(handle.selected, true)
        mouseMove(plot, centre.x + 35, centre.y + 33)
        mouseRelease(plot, centre.x + 35, centre.y + 33)
        compare(log, data.log)
    }

    function test_pressOutsideTheCircle() {
        const handle = make("")
        mousePress(handle.parent, handle.x + 8 + 17, handle.y + 8 + 17)
        compare(handle.dragging, false)
        mouseRelease(handle.parent, handle.x + 8 + 17, handle.y + 8 + 17)
    }

    function test_keysAndReset() {
        const handle = make("stepSize: 2; defaultX: 5")
        const log = logOf(handle)
        handle.forceActiveFocus()
        keyClick(Qt.Key_Right)
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Up, Qt.ShiftModifier)
        compare([handle.xValue, handle.yValue], [2, -1.6])
        keyClick(Qt.Key_Escape)
        compare([handle.xValue, handle.yValue], [0, 0])
        compare(log, ["dragged 2 0", "dragged 2 -2", "dragged 2 -1.6", "dragged 0 0", "canceled"])
        log.length = 0
        mouseDoubleClickSequence(handle.parent, handle.x + 8, handle.y + 8)
        compare([handle.xValue, handle.yValue], [5, 0])
        compare(log.sort(), ["dragged 5 0", "finished 5 0", "reset"])
        compare(handle.Accessible.description, "5.0 / 0.0")
    }

    function test_step_data() {
        return [
            { tag: "negative", body: "stepSize: -0.5", x: 0.5 },
            { tag: "continuous", body: "stepSize: 0; xFrom: -61.3", x: 0.813 },
            { tag: "continuous, fine", body: "stepSize: 0; xFrom: -61.3", modifiers: Qt.ShiftModifier, x: 0.1626 },
            { tag: "no number", body: "stepSize: NaN", x: 0.8 },
            { tag: "on the key pad", body: "", modifiers: Qt.KeypadModifier, x: 0.5 },
            { tag: "of the window", body: "", modifiers: Qt.AltModifier, x: 0 },
            { tag: "of the system", body: "", modifiers: Qt.MetaModifier, x: 0 },
        ]
    }
    function test_step(data) {
        const handle = make(data.body)
        handle.forceActiveFocus()
        keyClick(Qt.Key_Right, data.modifiers ?? Qt.NoModifier)
        fuzzyCompare(handle.xValue, data.x, 1e-9)
        compare(handle.yValue, 0)
    }

    function test_escapeRestoresAStartOutside() {
        const handle = make("xValue: 50; yValue: -90")
        const log = logOf(handle)
        handle.forceActiveFocus()
        keyClick(Qt.Key_Left)
        keyClick(Qt.Key_Escape)
        compare([handle.xValue, handle.yValue], [50, -90])
        compare(log.slice(-2), ["dragged 50 -90", "canceled"])
    }

    function test_texts_data() {
        return [
            { tag: "number", x: "-20.04", text: "-20.0" },
            { tag: "nearly 0", x: "-0.04", text: "0.0" },
            { tag: "no number", x: "NaN", text: "–" },
            { tag: "infinite", x: "Infinity", text: "∞" },
            { tag: "infinite, negative", x: "-Infinity", text: "−∞" },
        ]
    }
    function test_texts(data) {
        const handle = make("xValue: " + data.x)
        const both = data.text + " / 0.0"
        compare([handle.Accessible.description, handle.bubbleText], [both, both])
        handle.yEnabled = false
        compare(handle.Accessible.description, data.text)
    }

    function test_deviceAnswersLate() {
        const handle = make("settleTime: 50; yEnabled: false; xValue: parent.device")
        handle.forceActiveFocus()
        keyClick(Qt.Key_Up)
        compare(handle.xValue, -19.5)
        tryCompare(handle, "xValue", -20, 2000, "the device did not take it")
        handle.parent.device = -30
        compare(handle.xValue, -30)
    }
}
