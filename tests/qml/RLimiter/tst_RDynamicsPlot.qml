import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

PanelTestCase {
    id: root
    name: "RDynamicsPlot"

    function test_looks_data() {
        return [
            { tag: "plain", body: "", handle: true, filled: true, curve: "#008ccd" },
            { tag: "bypassed", body: "limiterBypassed: true", handle: true, filled: false, curve: "#323232" },
            { tag: "inactive", body: "calculatorActive: false", handle: false, filled: true, curve: "#008ccd" },
            { tag: "disabled", body: "enabled: false", handle: true, filled: false, curve: "#008ccd" },
            { tag: "handles hidden", body: "showHandles: false", handle: false, filled: true, curve: "#008ccd" },
            { tag: "empty range", body: "thresholdMin: 5; thresholdMax: 5", handle: false, filled: true, curve: "#008ccd" },
        ]
    }
    function test_looks(data) {
        const panel = make("RLimiter {" + data.body + "}")
        const handle = findChild(panel, "threshold")
        compare(handle.visible, data.handle)
        compare(handle.visiblePoint, data.filled)
        compare(findChild(panel, "curve").color, data.curve)
        compare(panel.values.length, data.tag === "inactive" ? 0 : data.tag === "bypassed" ? 2 : 3)
    }

    function test_valueIsShown() {
        const panel = make("RCompressor { ratio: 4 }")
        const handle = findChild(panel, "ratio")
        const bubble = () => findChild(handle, "bubble")
        compare(bubble(), null)
        const centre = centreOf(panel, "ratio")
        mouseMove(panel, centre.x, centre.y)
        tryVerify(() => bubble() !== null, 1000, "under the pointer")
        compare(bubble().text, "Ratio 4.0 : 1")
        mousePress(panel, centre.x, centre.y)
        mouseMove(panel, centre.x, centre.y - 15)
        compare(bubble().text, "Ratio 2.0 : 1")
        verify(bubble().mapToItem(panel, bubble().width, 0).x <= panel.width)
        mouseRelease(panel, centre.x, centre.y - 15)
        mouseMove(panel, 1, 1)
        tryVerify(() => bubble() === null, 1000, "gone with the drag")
        keyClick(Qt.Key_Up)
        compare(bubble().text, "Ratio 2.1 : 1")
    }

    function test_levelDot_data() {
        return [
            { tag: "on the identity", body: "inputLevel: -30", x: 90, y: 150 },
            { tag: "limited", body: "inputLevel: 5", x: 195, y: 90 },
            { tag: "below the plot", body: "inputLevel: -Infinity", x: 0, y: 240 },
            { tag: "bypassed", body: "inputLevel: 5; limiterBypassed: true", x: 195, y: 45 },
        ]
    }
    function test_levelDot(data) {
        const panel = make("RLimiter { threshold: -10; levelVisible: true; " + data.body + "}")
        const dot = findChild(panel, "level")
        const centre = dot.mapToItem(findChild(panel, "curve"), dot.width / 2, dot.height / 2)
        fuzzyCompare(centre.x, data.x, 0.01)
        fuzzyCompare(centre.y, data.y, 0.01)
    }

    // The gate's calculator says nothing when its curve ends to hold.
    function test_gateBeyondItsBounds_data() {
        return [
            { tag: "threshold", bad: 30 },
            { tag: "thresholdMin", bad: 5 },
            { tag: "thresholdMax", bad: -10 },
            { tag: "depth", bad: 70 },
            { tag: "depthMin", bad: 50 },
            { tag: "depthMax", bad: 10 },
            { tag: "gateBypassed", bad: false },
        ]
    }
    function test_gateBeyondItsBounds(data) {
        const panel = make(data.tag === "gateBypassed" ? "RGate { threshold: 30; gateBypassed: true }" : "RGate {}")
        const curve = findChild(panel, "curve")
        const before = panel[data.tag]
        const count = curve.values.length
        verify(count > 0)
        panel[data.tag] = data.bad
        compare(curve.values.length, 0)
        panel[data.tag] = before
        compare(curve.values.length, count)
    }

    function test_levelDotNeedsACurve() {
        const panel = make("RLimiter { levelVisible: true }")
        const isShown = () => findChild(panel, "level") !== null
        verify(isShown())
        panel.inputLevel = NaN
        tryVerify(() => !isShown())
        panel.inputLevel = -20
        verify(isShown())
        panel.calculatorActive = false
        tryVerify(() => !isShown())
    }

    function test_accessible_data() {
        return [
            { tag: "RLimiter", name: "Limiter", parameter: "threshold", handle: "Threshold", description: "0.0 dBu", range: [-60, 20, 0.5] },
            { tag: "RCompressor", name: "Compressor", parameter: "ratio", handle: "Ratio", description: "4.0 : 1", range: [1, 20, 0.1] },
            { tag: "RAGC", name: "AGC", parameter: "kneeIn", handle: "Knee", description: "6.0 dB", range: [0, 20, 0.5] },
            { tag: "RANC", name: "ANC", parameter: "ratio", handle: "Ratio", description: "1.0 dB/dB", range: [0.1, 10, 0.1] },
            { tag: "RDucker", name: "Ducker", parameter: "duckingLevel", handle: "Ducking", description: "20.0 dB", range: [0, 60, 0.5] },
            { tag: "RGate", name: "Gate", parameter: "depth", handle: "Depth", description: "40.0 dB", range: [0, 60, 0.5] },
        ]
    }
    function test_accessible(data) {
        const panel = make(data.tag + " {}")
        compare([panel.Accessible.role, panel.Accessible.name], [Accessible.Chart, data.name])
        verify(panel.Accessible.description.startsWith("-60 to 20 dBu"))
        const handle = findChild(panel, data.parameter)
        compare([handle.Accessible.role, handle.Accessible.name, handle.Accessible.description], [Accessible.Slider, data.handle, data.description])
        compare([handle.minimumValue, handle.maximumValue, handle.stepSize], data.range)
        const start = handle.value
        handle.Accessible.increaseAction()
        fuzzyCompare(panel[data.parameter], start + handle.stepSize, 1e-9)
        panel[data.parameter] = NaN
        handle.close()
        tryVerify(() => handle.Accessible.description.startsWith("–"), 1000)
    }

    // Nothing here may warn, in particular not in every frame.
    function test_badValues_data() {
        const rows = []
        for (const panel of root.panels) {
            for (const value of ["NaN", "Infinity", "-Infinity"])
                rows.push({ tag: panel + " " + value, panel: panel, value: value })
        }
        return rows
    }
    function test_badValues(data) {
        const panel = make(data.panel + " { levelVisible: true }")
        const bad = Number(data.value)
        for (const property of Object.keys(panel)) {
            const isParameter = /^(threshold|ratio|makeUp|soft|levelIn|kneeIn|ambient|minimumGain|maximumGain|duckingL|depth|input)/.test(property)
            if (!isParameter || typeof panel[property] !== "number")
                continue
            const before = panel[property]
            panel[property] = bad
            for (const point of panel.values)
                verify(point.x >= 0 && point.x <= 1 && point.y >= 0 && point.y <= 1, property)
            const handle = findChild(panel, property)
            if (handle) {
                verify(handle.x >= -8 && handle.x <= 240 && handle.y >= -8 && handle.y <= 240, property)
                handle.forceActiveFocus()
                keyClick(Qt.Key_Up)
                keyClick(Qt.Key_Escape)
            }
            waitForRendering(panel, 10)
            panel[property] = before
        }
    }

    function test_meters() {
        const compressor = make("RCompressor { gainReductionVisible: true; gainReduction: 6 }")
        const agc = make("RAGC { gainMeterVisible: true; gain: -6; gainRange: 12 }")
        const anc = make("RANC { ambientMeterVisible: true; ambientLevel: -20 }")
        const reduction = findChild(compressor, "meter")
        compare([reduction.reverse, reduction.value, reduction.valueMin, reduction.valueMax], [true, 6, 0, 20])
        const gain = findChild(agc, "meter")
        compare([gain.split, gain.value, gain.valueMin, gain.valueMax], [true, -6, -12, 12])
        const ambient = findChild(anc, "meter")
        compare([ambient.horizontal, ambient.value, ambient.valueMin, ambient.valueMax], [true, -20, -60, 20])
        compare(ambient.width, findChild(anc, "curve").width)
        compare(reduction.height, findChild(compressor, "curve").height)
        agc.gain = 10
        compare(gain.currentValue, 10)
        agc.gain = -10
        tryVerify(() => gain.currentValue < 10)
        compare(gain.currentValue, -10, "a gain falls at once")
    }

    function test_frozenGain() {
        const panel = make("RANC {}")
        verify(panel.Accessible.description.includes("gain frozen"))
        panel.freezeGain = false
        verify(!panel.Accessible.description.includes("gain frozen"))
    }
}
