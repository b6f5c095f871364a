import QtQuick
import QtTest
import TambleClient.Control 1.0

FaderTestCase {
    id: root
    name: "RFader"

    function test_size_data() {
        return [
            { tag: "upright", body: "", size: [56, 280] },
            { tag: "without scale", body: "showTicks: false; showLabels: false", size: [32, 280] },
            { tag: "lying", body: "orientation: Qt.Horizontal", size: [280, 56] },
        ]
    }
    function test_size(data) {
        const fader = make("RFader {" + data.body + "}")
        compare([fader.width, fader.height], data.size)
        compare([fader.from, fader.to, fader.value, fader.stepSize], [-80, 10, -80, 0.5])
        compare([fader.minimumValue, fader.maximumValue], [-80, 10])
    }

    // A meter of the same height has its ends 24 pixels from its own.
    function test_handleStandsAtTheValue_data() {
        return [
            { tag: "bottom", body: { value: -90 }, y: 224 },
            { tag: "inside", body: { value: -40 }, y: 124 },
            { tag: "over the range", body: { value: 30 }, y: 24 },
            { tag: "not a number", body: { value: NaN }, y: 224 },
            { tag: "reversed", body: { from: 10, to: -90, value: -40 }, y: 124 },
            { tag: "empty range", body: { from: 0, to: 0, value: 5 }, y: 224 },
            { tag: "exponential", body: { from: -80, exponential: true, value: 0 }, y: 90 },
            { tag: "table", body: { from: -80, jtSpread: true, exponential: true, value: -5 }, y: 99 },
        ]
    }
    function test_handleStandsAtTheValue(data) {
        const fader = makeFader(data.body)
        compare(fader.handle.y + fader.handle.height / 2, data.y)
    }

    function test_reset_data() {
        return [
            { tag: "to 0 dB", body: {}, log: ["edited 0", "committed 0"] },
            { tag: "without a default", body: { defaultValue: undefined }, log: [] },
            { tag: "a default outside of the range", body: { defaultValue: 30 }, log: [] },
            { tag: "read-only", body: { readOnly: true }, log: [] },
        ]
    }
    function test_reset(data) {
        const fader = makeFader(data.body)
        mouseDoubleClickSequence(fader, 28, 200)
        compare(fader.log, data.log)
        fader.log.length = 0
        fader.value = -20
        tryCompare(fader, "value", -20)
        mouseClick(fader, 28, 60, Qt.LeftButton, Qt.ControlModifier)
        compare(fader.log, data.log, "Ctrl and click")
    }

    function test_keys_data() {
        return [
            { tag: "up", key: Qt.Key_Up, value: -19.5 },
            { tag: "left", key: Qt.Key_Left, value: -20.5 },
            { tag: "fine", key: Qt.Key_Right, modifiers: Qt.ShiftModifier, value: -19.9 },
            { tag: "with Ctrl", key: Qt.Key_Down, modifiers: Qt.ControlModifier, value: -23 },
            { tag: "page", key: Qt.Key_PageUp, value: -17 },
            { tag: "home", key: Qt.Key_Home, value: -90 },
            { tag: "end is no way to the maximum", key: Qt.Key_End, value: 0 },
            { tag: "end without a default", key: Qt.Key_End, body: { defaultValue: undefined }, value: -20 },
            { tag: "Ctrl and 0", key: Qt.Key_0, modifiers: Qt.ControlModifier, value: 0 },
            { tag: "0 alone", key: Qt.Key_0, value: -20 },
            { tag: "continuous", key: Qt.Key_Up, body: { stepSize: 0 }, value: -19 },
            { tag: "negative steps", key: Qt.Key_Up, body: { stepSize: -2 }, value: -18 },
            { tag: "limited", key: Qt.Key_PageDown, body: { value: -89 }, value: -90 },
            { tag: "read-only", key: Qt.Key_Up, body: { readOnly: true }, value: -20 },
            { tag: "empty range", key: Qt.Key_Up, body: { from: 0, to: 0 }, value: 0 },
        ]
    }
    function test_keys(data) {
        const fader = makeFader(data.body ?? {})
        fader.forceActiveFocus()
        const before = fader.value
        keyClick(data.key, data.modifiers ?? Qt.NoModifier)
        compare(fader.value, data.value)
        compare(fader.log, data.value === before ? [] : ["edited " + data.value])
    }

    function test_heldKeyIsOneGesture() {
        const fader = makeFader({})
        fader.forceActiveFocus()
        for (let i = 0; i < 3; ++i)
            keyClick(Qt.Key_Up)
        tryVerify(() => fader.log.length > 3)
        compare(fader.log, ["edited -19.5", "edited -19", "edited -18.5", "committed -18.5"])
        keyClick(Qt.Key_Up)
        keyClick(Qt.Key_Escape)
        compare(fader.value, -18.5)
        compare(fader.log[fader.log.length - 1], "canceled")
    }

    function test_wheel() {
        const fader = makeFader({})
        mouseWheel(fader, 28, 100, 0, 120)
        compare(fader.value, -20, "without the focus")
        fader.forceActiveFocus()
        verify(fader.handle.border.color.a > 0, "the focus shows")
        mouseWheel(fader, 28, 100, 0, 120)
        compare(fader.value, -19.5)
        mouseWheel(fader, 28, 100, 0, -60)
        mouseWheel(fader, 28, 100, 0, -60)
        compare(fader.value, -20, "small turns add up")
        mouseWheel(fader, 28, 100, 0, -360, Qt.NoButton, Qt.ShiftModifier)
        compare(fader.value, -20.3)
        mouseWheel(fader, 28, 100, 120, 0)
        compare(fader.value, -20.3, "sideways")
        fader.wheelEnabled = false
        mouseWheel(fader, 28, 100, 0, 120)
        compare(fader.value, -20.3)
    }

    function test_readOnly() {
        const fader = makeFader({ readOnly: true })
        press(fader, 200)
        mouseMove(fader, 28, 100)
        mouseRelease(fader, 28, 100)
        compare(fader.activeFocus, true)
        mouseWheel(fader, 28, 100, 0, 120)
        compare(fader.log, [])
        fader.readOnly = false
        press(fader, 200)
        mouseMove(fader, 28, 180)
        fader.readOnly = true
        compare(fader.log, ["edited -10", "committed -10"], "ends the drag where it is")
        mouseMove(fader, 28, 100)
        mouseRelease(fader, 28, 100)
        compare(fader.log.length, 2)
    }

    function test_lateDevice() {
        const device = makeDevice()
        const fader = makeFader({})
        fader.value = Qt.binding(() => device.level)
        press(fader, 200)
        mouseMove(fader, 28, 180)
        device.level = -60
        compare(fader.value, -10, "the user holds it")
        mouseRelease(fader, 28, 180)
        compare(fader.value, -10, "the device has not answered yet")
        tryCompare(fader, "value", -60, 1000, "the device did not take it")
        press(fader, 200)
        device.level = -50
        mouseMove(fader, 28, 198)
        compare(fader.value, -49, "the device moved it since the press")
        mouseRelease(fader, 28, 198)
    }

    function test_rangeThatComesAfterTheValue() {
        const device = makeDevice()
        const fader = makeFader({})
        fader.from = Qt.binding(() => device.minimum)
        fader.to = Qt.binding(() => device.maximum)
        fader.value = Qt.binding(() => device.level)
        compare(fader.value, 0)
        device.minimum = -80
        device.maximum = 10
        compare(fader.value, -20)
        compare(fader.log, [])
    }

    function test_mixed() {
        const fader = makeFader({ consistent: false, value: 0 })
        compare((fader.handle as Rectangle).color, "#f9af3c")
        compare(fader.RStyleSet.state, "inconsistent ")
        mouseDoubleClickSequence(fader, 28, 200)
        compare(fader.log, ["edited 0", "committed 0"], "sets all, though it shows 0 already")
    }

    function test_lyingFader() {
        const fader = makeFader({ orientation: Qt.Horizontal, width: 248, height: 56 })
        compare(fader.handle.mapToItem(fader, 0, fader.handle.height / 2).x, 164)
        mousePress(fader, 100, 28)
        mouseMove(fader, 120, 28)
        mouseRelease(fader, 120, 28)
        compare(fader.value, -10)
    }

    function labels(fader: RFader): list<string> {
        return Array.from(fader.marks, mark => mark.label).filter(text => text.length > 0)
    }
    function test_scale() {
        const fader = makeFader({ from: -80 })
        tryVerify(() => fader.marks.length === 9)
        compare(labels(fader), ["0", "\u2212\u221e", "10", "-10", "-20", "-30", "-40", "-50", "-60"])
        compare([fader.marks[0].extra, fader.marks[1].extra], [true, false])
        fader.ticks = [-80, -30, -29]
        fader.converter = make("RDoubleValueConverter { unit: 'dB' }")
        tryVerify(() => fader.marks.length === 4)
        compare(labels(fader), ["-80", "-30"], "no room for -29, nor for the unit")
    }

}
