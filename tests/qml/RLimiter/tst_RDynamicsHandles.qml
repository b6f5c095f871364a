import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

PanelTestCase {
    id: root
    name: "RDynamicsHandles"

    function handleRows(): list<var> {
        return [
            { tag: "limiter", panel: "RLimiter", parameter: "threshold", dx: -30, dy: 30, value: -10, first: -5, up: 0.5, page: -3 },
            { tag: "limiter, across the diagonal", panel: "RLimiter", parameter: "threshold", dx: -30, dy: 0, value: -5, first: -2.5, up: 0.5, page: -3 },
            { tag: "compressor threshold, rounded", panel: "RCompressor", parameter: "threshold", dx: -31, dy: 0, value: -10.5, first: -5, up: 0.5, page: -3 },
            { tag: "compressor ratio", panel: "RCompressor", parameter: "ratio", dx: 0, dy: -30, value: 1.3, first: 2, up: 4.1, page: 3.4 },
            { tag: "compressor gain", panel: "RCompressor", parameter: "makeUpGain", dx: 0, dy: -30, value: 10, first: 5, up: 0.5, page: 0 },
            { tag: "AGC target", panel: "RAGC", parameter: "levelIn", dx: -30, dy: 30, value: -10, first: -5, up: 0.5, page: -3 },
            { tag: "AGC threshold", panel: "RAGC", parameter: "threshold", dx: -30, dy: 0, value: -30, first: -25, up: -19.5, page: -23 },
            { tag: "AGC knee", panel: "RAGC", parameter: "kneeIn", dx: -12, dy: 0, value: 10, first: 8, up: 6.5, page: 3 },
            { tag: "AGC ratio", panel: "RAGC", parameter: "ratio", dx: 0, dy: -10, value: 2, first: 2.4, up: 3.1, page: 2.4 },
            { tag: "ANC minimum gain", panel: "RANC", parameter: "minimumGain", dx: 0, dy: -30, value: -5, first: -7.5, up: -9.5, page: -13 },
            { tag: "ANC maximum gain", panel: "RANC", parameter: "maximumGain", dx: 0, dy: 30, value: 5, first: 7.5, up: 10.5, page: 7 },
            { tag: "ANC threshold", panel: "RANC", parameter: "ambientThreshold", dx: 30, dy: 0, value: -10, first: -15, up: -19.5, page: -23 },
            { tag: "ANC ratio", panel: "RANC", parameter: "ratio", dx: -30, dy: 0, value: 2, first: 1.3, up: 1.1, page: 0.4 },
            { tag: "ducker threshold", panel: "RDucker", parameter: "threshold", dx: -30, dy: 0, value: -10, first: -5, up: 0.5, page: -3 },
            { tag: "ducking", panel: "RDucker", parameter: "duckingLevel", dx: 0, dy: 30, value: 30, first: 25, up: 20.5, page: 17 },
            { tag: "gate threshold", panel: "RGate", parameter: "threshold", dx: -30, dy: 0, value: -10, first: -5, up: 0.5, page: -3 },
            { tag: "gate depth", panel: "RGate", parameter: "depth", dx: 0, dy: -30, value: 30, first: 35, up: 40.5, page: 37 },
        ]
    }

    function test_mouse_data() {
        return handleRows()
    }
    function test_mouse(data) {
        const panel = make(data.panel + " {}")
        const log = logOf(panel, data.parameter)
        const start = panel[data.parameter]
        drag(panel, data.parameter, data.dx, data.dy)
        compare(log, ["edited " + data.first, "edited " + data.value, "committed " + data.value])
        compare(panel[data.parameter], data.value)
        const centre = centreOf(panel, data.parameter)
        mouseDoubleClickSequence(panel, centre.x, centre.y)
        compare(panel[data.parameter], start, "double click")
        compare(log.slice(3), ["edited " + start, "committed " + start])
    }

    function test_touch_data() {
        return handleRows().filter(row => row.panel === "RAGC" || row.panel === "RLimiter")
    }
    function test_touch(data) {
        const panel = make(data.panel + " {}")
        const log = logOf(panel, data.parameter)
        const start = panel[data.parameter]
        let centre = centreOf(panel, data.parameter)
        const finger = touchEvent(panel)
        finger.press(0, panel, centre.x, centre.y).commit()
        finger.move(0, panel, centre.x + data.dx / 2, centre.y + data.dy / 2).commit()
        finger.move(0, panel, centre.x + data.dx, centre.y + data.dy).commit()
        finger.release(0, panel, centre.x + data.dx, centre.y + data.dy).commit()
        compare(log.slice(-2), ["edited " + data.value, "committed " + data.value])
        centre = centreOf(panel, data.parameter)
        for (let i = 0; i < 2; ++i) {
            finger.press(0, panel, centre.x, centre.y).commit()
            finger.release(0, panel, centre.x, centre.y).commit()
        }
        compare(panel[data.parameter], start, "double tap")
    }

    function test_keys_data() {
        return handleRows()
    }
    function test_keys(data) {
        const panel = make(data.panel + " {}")
        const log = logOf(panel, data.parameter)
        const start = panel[data.parameter]
        const handle = findChild(panel, data.parameter)
        handle.forceActiveFocus(Qt.TabFocusReason)
        keyClick(Qt.Key_Up)
        fuzzyCompare(panel[data.parameter], data.up, 1e-9)
        keyClick(Qt.Key_Left)
        keyClick(Qt.Key_Right, Qt.ShiftModifier)
        fuzzyCompare(panel[data.parameter], start + 0.1, 1e-9, "a fifth of 0.5; ratios have tenths anyway")
        keyClick(Qt.Key_Escape)
        compare(panel[data.parameter], start)
        compare(log.slice(-2), ["edited " + start, "canceled"])
        log.length = 0

        keyClick(Qt.Key_PageDown)
        fuzzyCompare(panel[data.parameter], data.page, 1e-9)
        handle.close()
        compare(log.length, data.page === start ? 0 : 2)
        keyClick(Qt.Key_End)
        compare(panel[data.parameter], start, "the end key leads to the default, never to the loudest")
        keyClick(Qt.Key_Home)
        compare(panel[data.parameter], start)
    }

    function test_dragStep_data() {
        return [
            { tag: "negative", panel: "RLimiter { dragStep: -0.5 }", up: 0.5, fine: 0.1 },
            { tag: "continuous", panel: "RLimiter { dragStep: 0 }", up: 0.8, fine: 0.16 },
            { tag: "no number", panel: "RLimiter { dragStep: NaN }", up: 0.8, fine: 0.16 },
        ]
    }
    function test_dragStep(data) {
        const panel = make(data.panel)
        const handle = findChild(panel, "threshold")
        handle.forceActiveFocus()
        keyClick(Qt.Key_Up)
        fuzzyCompare(panel.threshold, data.up, 1e-9)
        compare(handle.stepSize, data.up)
        keyClick(Qt.Key_Down, Qt.ShiftModifier)
        fuzzyCompare(panel.threshold, data.up - data.fine, 1e-9)
    }

    function test_keysOfOneGesture() {
        const panel = make("RDucker {}")
        const log = logOf(panel, "threshold")
        findChild(panel, "threshold").forceActiveFocus(Qt.TabFocusReason)
        keyClick(Qt.Key_Up)
        keyClick(Qt.Key_Up)
        tryCompare(log, "length", 3, 1000, "a pause ends it")
        compare(log, ["edited 0.5", "edited 1", "committed 1"])
        keyClick(Qt.Key_Down)
        findChild(panel, "duckingLevel").forceActiveFocus(Qt.TabFocusReason)
        compare(log.slice(3), ["edited 0.5", "committed 0.5"], "so does the next handle")
    }

    function test_bounds_data() {
        return [
            { tag: "above", panel: "RLimiter { thresholdMax: 20; threshold: 10 }", parameter: "threshold", dx: 200, dy: -200, value: 20 },
            { tag: "far below", panel: "RLimiter { threshold: 10 }", parameter: "threshold", dx: -600, dy: 600, value: -60 },
            { tag: "a flat line has the highest ratio", panel: "RCompressor {}", parameter: "ratio", dx: 0, dy: 40, value: 20 },
            { tag: "a steep one the lowest", panel: "RCompressor {}", parameter: "ratio", dx: 0, dy: -200, value: 1 },
            { tag: "gain", panel: "RCompressor { makeUpGainMax: 6.2 }", parameter: "makeUpGain", dx: 0, dy: -100, value: 6.2 },
            { tag: "swapped", panel: "RCompressor { makeUpGainMin: 8; makeUpGainMax: 0 }", parameter: "makeUpGain", dx: 0, dy: -100, value: 8 },
            { tag: "no rounding", panel: "RDucker { dragStep: 0; threshold: -1 }", parameter: "threshold", dx: -60, dy: 0, value: -21 },
            { tag: "coarse rounding", panel: "RDucker { dragStep: 6 }", parameter: "threshold", dx: -60, dy: 0, value: -18 },
            { tag: "a tremor is no drag", panel: "RDucker { threshold: -1 }", parameter: "threshold", dx: 2, dy: 2, value: -1 },
            { tag: "shifted levels", panel: "RAGC { thresholdOffset: 15 }", parameter: "levelIn", dx: -30, dy: 30, value: -10 },
            { tag: "shifted ambient levels", panel: "RANC { ambientThresholdOffset: 15 }", parameter: "ambientThreshold", dx: -30, dy: 0, value: -30 },
        ]
    }
    function test_bounds(data) {
        const panel = make(data.panel)
        drag(panel, data.parameter, data.dx, data.dy)
        fuzzyCompare(panel[data.parameter], data.value, 1e-9)
    }

    function test_escapeRestores() {
        const panel = make("RGate {}")
        const log = logOf(panel, "depth")
        const centre = press(panel, "depth")
        mouseMove(panel, centre.x, centre.y - 30)
        keyClick(Qt.Key_Escape)
        mouseMove(panel, centre.x, centre.y - 60)
        mouseRelease(panel, centre.x, centre.y - 60)
        compare(log, ["edited 30", "edited 40", "canceled"])
        compare(panel.depth, 40)
        let passedOn = 0
        panel.Keys.escapePressed.connect(() => passedOn += 1)
        keyClick(Qt.Key_Escape)
        compare(passedOn, 1, "with nothing to take back")
    }

    function test_deviceAnswersLate() {
        const device = make("QtObject { property real threshold: -20 }")
        const panel = make("RLimiter { property QtObject device; settleTime: 100; threshold: device ? device.threshold : 0 }")
        panel.device = device
        drag(panel, "threshold", 30, -30)
        compare(panel.threshold, -10, "at once")
        device.threshold = -15
        compare(panel.threshold, -10, "an answer to an earlier step")
        tryCompare(panel, "threshold", -15, 1000, "what the device took")
        device.threshold = -30
        compare(panel.threshold, -30, "the page's binding is alive")
        compare(findChild(panel, "threshold").value, -30)
    }

    function test_equalBoundsHaveNoHandle() {
        const panel = make("RCompressor { ratioMin: 4; ratioMax: 4 }")
        compare(findChild(panel, "ratio").visible, false)
        compare(findChild(panel, "threshold").visible, true)
        panel.ratioMax = 8
        compare(findChild(panel, "ratio").visible, true)
        // The knee's bounds change without a signal of their own.
        const agc = make("RAGC { kneeInMax: 0 }")
        compare(findChild(agc, "kneeIn").visible, false)
        agc.kneeInMax = 20
        compare(findChild(agc, "kneeIn").visible, true)
    }

    // Two handles at one point: the one that can leave it is meant.
    function test_handlesAtOnePoint_data() {
        return [
            { tag: "gate without depth", panel: "RGate { depth: 0 }", parameter: "threshold", dx: 0, dy: 30, changed: "depth", value: 10 },
            { tag: "compressor that never works", panel: "RCompressor { threshold: 20 }", parameter: "ratio", dx: -30, dy: 0, changed: "threshold", value: 10 },
            { tag: "AGC without knee", panel: "RAGC { kneeIn: 0; ratio: 1 }", parameter: "threshold", dx: -30, dy: 0, changed: "kneeIn", value: 10 },
            { tag: "the nearer one", panel: "RAGC { kneeIn: 5; ratio: 1 }", parameter: "threshold", dx: -30, dy: 0, changed: "threshold", value: -30 },
        ]
    }
    function test_handlesAtOnePoint(data) {
        const panel = make(data.panel)
        drag(panel, data.parameter, data.dx, data.dy)
        compare(panel[data.changed], data.value)
    }

    function test_readOnly() {
        const panel = make("RLimiter { readOnly: true; threshold: -20 }")
        const log = logOf(panel, "threshold")
        drag(panel, "threshold", 30, -30)
        const handle = findChild(panel, "threshold")
        verify(handle.activeFocus)
        for (const key of [Qt.Key_Up, Qt.Key_End, Qt.Key_Home])
            keyClick(key)
        const centre = centreOf(panel, "threshold")
        mouseDoubleClickSequence(panel, centre.x, centre.y)
        handle.Accessible.increaseAction()
        compare(panel.threshold, -20)
        compare(log, [])
        compare(handle.Accessible.description, "-20.0 dBu, read only")
    }
}
