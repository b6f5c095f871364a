import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

// The fader is 248 pixels high: 200 pixels of travel for 100 dB, 2 pixels for 1 dB.
ThemedTestCase {
    id: root
    name: "RFader"

    component LoggedFader: RFader {
        id: fader

        property var log: []

        height: 248
        from: -90
        to: 10
        value: -20
        label: "Level"
        settleTime: 50
        onValueEdited: level => fader.log.push("edited " + level)
        onValueCommitted: level => fader.log.push("committed " + level)
        onEditCanceled: fader.log.push("canceled")
    }
    Component {
        id: faderComponent
        LoggedFader {}
    }
    Component {
        id: deviceComponent
        QtObject {
            property real level: -20
            property real minimum: 0
            property real maximum: 0
        }
    }

    function cleanup() {
        root.sheet = "dark"
    }

    function make(body: var): LoggedFader {
        const fader = createTemporaryObject(faderComponent, root, body)
        waitForRendering(fader)
        return fader
    }

    /*! Pixel of the fader's middle line, for a fader standing upright. */
    function press(fader: RFader, y: real) {
        mousePress(fader, 28, y)
    }

    function test_size_data() {
        return [
            { tag: "upright", body: "", size: [56, 280] },
            { tag: "without scale", body: "showTicks: false; showLabels: false", size: [32, 280] },
            { tag: "lying", body: "orientation: Qt.Horizontal", size: [280, 56] },
        ]
    }
    function test_size(data) {
        const fader = createTemporaryQmlObject("import TambleClient.Control 1.0\nRFader {" + data.body + "}", root)
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
        const fader = make(data.body)
        compare(fader.handle.y + fader.handle.height / 2, data.y)
    }

    function test_drag() {
        const fader = make({})
        press(fader, 200)
        compare(fader.pressed, true)
        compare(fader.activeFocus, true)
        compare(fader.value, -20, "a press does not move")
        mouseMove(fader, 28, 196)
        compare(fader.value, -18)
        compare(fader.editing, true)
        mouseMove(fader, 28, 195)
        compare(fader.value, -17.5)
        mouseMove(fader, 28, -300)
        compare(fader.value, 10)
        mouseMove(fader, 28, 120)
        compare(fader.value, 10, "the pointer went 20 pixels too far")
        mouseMove(fader, 28, 138)
        compare(fader.value, 10)
        mouseMove(fader, 28, 142)
        compare(fader.value, 9)
        mouseRelease(fader, 28, 142)
        compare(fader.log, ["edited -18", "edited -17.5", "edited 10", "edited 9", "committed 9"])
        compare(fader.editing, false)
        tryCompare(fader, "pressed", false)
    }

    function test_clickWithoutMovementOnlyFocuses() {
        const fader = make({})
        mouseClick(fader, 28, 60)
        compare(fader.activeFocus, true)
        compare(fader.log, [])
    }

    function test_releaseAfterEscapeDoesNothing() {
        const fader = make({})
        press(fader, 200)
        mouseMove(fader, 28, 180)
        compare(fader.value, -10)
        keyClick(Qt.Key_Escape)
        compare([fader.value, fader.pressed], [-20, false])
        mouseMove(fader, 28, 100)
        mouseRelease(fader, 28, 100)
        compare(fader.value, -20)
        compare(fader.log, ["edited -10", "edited -20", "canceled"])
    }

    function test_notLiveSpeaksAtTheEnd() {
        const fader = make({ live: false })
        press(fader, 200)
        mouseMove(fader, 28, 190)
        mouseMove(fader, 28, 180)
        compare(fader.value, -10)
        compare(fader.log, [])
        mouseRelease(fader, 28, 180)
        compare(fader.log, ["edited -10", "committed -10"])
    }

    function test_detentsHold() {
        const fader = make({})
        fader.detents = [-10]
        press(fader, 200)
        mouseMove(fader, 28, 183)
        compare(fader.value, -10, "3 pixels away")
        mouseMove(fader, 28, 175)
        compare(fader.value, -7.5)
        mouseRelease(fader, 28, 175)
    }

    function test_trackPress_data() {
        return [
            { tag: "holds", jump: false, y: 124, log: [] },
            { tag: "jumps when wanted", jump: true, y: 124, log: ["edited -40", "committed -40"] },
            { tag: "on the handle", jump: true, y: 90, log: [] },
        ]
    }
    function test_trackPress(data) {
        const fader = make({ jumpOnTrackPress: data.jump })
        mouseClick(fader, 40, data.y)
        compare(fader.log, data.log)
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
        const fader = make(data.body)
        mouseDoubleClickSequence(fader, 28, 200)
        compare(fader.log, data.log)
        fader.log = []
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
        const fader = make(data.body ?? {})
        fader.forceActiveFocus()
        const before = fader.value
        keyClick(data.key, data.modifiers ?? Qt.NoModifier)
        compare(fader.value, data.value)
        compare(fader.log, data.value === before ? [] : ["edited " + data.value])
    }

    function test_heldKeyIsOneGesture() {
        const fader = make({})
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
        const fader = make({})
        mouseWheel(fader, 28, 100, 0, 120)
        compare(fader.value, -20, "without the focus")
        fader.forceActiveFocus()
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
        const fader = make({ readOnly: true })
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
        const device = createTemporaryObject(deviceComponent, root)
        const fader = make({})
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
        const device = createTemporaryObject(deviceComponent, root)
        const fader = make({})
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
        const fader = make({ consistent: false, value: 0 })
        compare((fader.handle as Rectangle).color, "#f9af3c")
        compare(fader.RStyleSet.state, "inconsistent ")
        mouseDoubleClickSequence(fader, 28, 200)
        compare(fader.log, ["edited 0", "committed 0"], "sets all, though it shows 0 already")
    }

    function test_fingersOnTwoFaders() {
        const first = make({})
        const second = make({ x: 80, value: -40 })
        const touch = touchEvent(first)
        touch.press(0, first, 28, 150).commit()
        touch.stationary(0).press(1, second, 28, 150).commit()
        // A finger may wander by 5 pixels before it counts as dragging.
        touch.move(0, first, 28, 125).move(1, second, 28, 175).commit()
        tryCompare(first, "value", -10)
        tryCompare(second, "value", -50)
        touch.move(0, first, 28, 115).stationary(1).commit()
        tryCompare(first, "value", -5)
        touch.release(0, first, 28, 115).release(1, second, 28, 175).commit()
        compare([first.log[2], second.log[1]], ["committed -5", "committed -50"])
        compare(first.pressed || second.pressed, false)
    }

    function test_escapeTakesTheHandleFromTheFinger() {
        const fader = make({})
        fader.forceActiveFocus()
        const touch = touchEvent(fader)
        touch.press(0, fader, 28, 150).commit()
        touch.move(0, fader, 28, 125).commit()
        tryCompare(fader, "value", -10)
        keyClick(Qt.Key_Escape)
        compare([fader.value, fader.pressed, fader.editing], [-20, false, false])
        touch.move(0, fader, 28, 100).commit()
        touch.release(0, fader, 28, 100).commit()
        compare([fader.value, fader.pressed], [-20, false])
        compare(fader.log, ["edited -10", "edited -20", "canceled"])
        touch.press(0, fader, 28, 150).commit()
        touch.move(0, fader, 28, 125).commit()
        tryCompare(fader, "value", -10, 1000, "the next finger takes hold again")
        compare(fader.pressed, true)
        touch.release(0, fader, 28, 125).commit()
        compare(fader.pressed, false)
    }

    Flickable {
        id: view
        x: 150
        width: 100
        height: 260
        contentWidth: 300
        contentHeight: 800
    }
    function test_fingerInAView_data() {
        return [
            { tag: "along the fader", dx: 0, dy: -6, scrolls: false },
            { tag: "across scrolls", dx: -6, dy: 0, scrolls: true },
        ]
    }
    function test_fingerInAView(data) {
        view.contentX = 0
        view.contentY = 0
        const fader = createTemporaryObject(faderComponent, view.contentItem)
        const touch = touchEvent(fader)
        touch.press(0, view, 28, 150).commit()
        for (let i = 1; i <= 12; ++i) {
            touch.move(0, view, 28 + i * data.dx, 150 + i * data.dy).commit()
            waitForRendering(view, 20) // moves are handed on once a frame
        }
        tryVerify(() => data.scrolls ? view.contentX > 0 : fader.value > -20)
        compare([fader.value > -20, view.contentX > 0, view.contentY > 0], [!data.scrolls, data.scrolls, false])
        touch.release(0, view, 28 + 12 * data.dx, 150 + 12 * data.dy).commit()
        compare(fader.pressed, false)
    }

    function test_goneWhileHeld() {
        const pressed = make({})
        press(pressed, 200)
        mouseMove(pressed, 28, 190)
        pressed.destroy()
        wait(0)
        mouseRelease(root, 28, 190)
        const touched = make({})
        const touch = touchEvent(root)
        touch.press(0, touched, 28, 150).commit()
        touch.move(0, touched, 28, 120).commit()
        tryCompare(touched, "editing", true)
        touched.destroy()
        wait(0)
        touch.release(0, root, 28, 120).commit()
    }

    function test_doubleTapResets() {
        const fader = make({})
        for (let i = 0; i < 2; ++i) {
            touchEvent(fader).press(0, fader, 28, 150).commit()
            touchEvent(fader).release(0, fader, 28, 150).commit()
        }
        compare(fader.log, ["edited 0", "committed 0"])
    }

    function test_contextMenu() {
        const fader = make({})
        const places = []
        fader.contextMenuRequested.connect(place => places.push(place.y))
        mouseClick(fader, 28, 60, Qt.RightButton)
        compare(places, [60])
        const touch = touchEvent(fader)
        touch.press(0, fader, 28, 150).commit()
        tryVerify(() => places.length === 2)
        touch.move(0, fader, 28, 100).commit()
        touch.release(0, fader, 28, 100).commit()
        compare(fader.log, [], "the finger has let go of the handle")
    }

    function test_lyingFader() {
        const fader = make({ orientation: Qt.Horizontal, width: 248, height: 56 })
        compare(fader.handle.mapToItem(fader, 0, fader.handle.height / 2).x, 164)
        mousePress(fader, 100, 28)
        mouseMove(fader, 120, 28)
        mouseRelease(fader, 120, 28)
        compare(fader.value, -10)
    }

    function labels(fader: RFader): list<string> {
        const texts = []
        for (const mark of fader.marks) {
            if (mark.label.length > 0)
                texts.push(mark.label)
        }
        return texts
    }
    function test_scale() {
        const fader = make({ from: -80 })
        tryVerify(() => fader.marks.length === 9)
        compare(labels(fader), ["0", "\u2212\u221e", "10", "-10", "-20", "-30", "-40", "-50", "-60"])
        compare([fader.marks[0].extra, fader.marks[1].extra], [true, false])
        fader.ticks = [-80, -30, -29]
        fader.converter = createTemporaryQmlObject("import TambleClient.Control 1.0\nRDoubleValueConverter { unit: 'dB' }", root)
        tryVerify(() => fader.marks.length === 4)
        compare(labels(fader), ["-80", "-30"], "no room for -29, nor for the unit")
    }

    function test_everySheet_data() {
        return [{ tag: "dark" }, { tag: "light" }, { tag: "contrast-dark" }, { tag: "contrast-light" }]
    }
    function test_everySheet(data) {
        root.sheet = data.tag
        const fader = make({ trackIndicatorVisible: true, handleText: "AUX" })
        for (const word of ["", "red", "green"]) {
            fader.RStyleSet.name = word
            for (const flag of ["hovered", "pressed", "focus", "inconsistent"]) {
                fader.RStyleSet.stateHelper[flag] = true
                fader.consistent = flag !== "inconsistent"
            }
        }
        fader.forceActiveFocus()
        verify(fader.handle.border.color.a > 0, "the focus shows")
        wait(60) // missing keys are reported from a timer
    }
}
