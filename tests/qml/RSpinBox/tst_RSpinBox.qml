import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RSpinBox"

    // A page that binds to a device; it takes what is sent when `takes` is set.
    function makePage(body: string, type = "RSpinBox"): var {
        const page = make(`FocusScope {
            property var device: 12
            property bool takes: true
            property alias field: inner
            width: 400
            height: 200
            focus: true
            ${type} {
                id: inner
                value: parent ? parent.device : 0
                settleTime: 20
                onValueEdited: (value) => { if (parent.takes) parent.device = value }
                ${body}
            }
            TextInput { y: 40; width: 50; activeFocusOnTab: true }
        }`)
        page.forceActiveFocus()
        page.field.forceActiveFocus(Qt.TabFocusReason)
        return page
    }
    function logOf(page: var): var {
        return logged(page.field, { valueEdited: "edited", valueCommitted: "committed", editCanceled: "canceled",
                                    rejected: "rejected", stepped: "stepped" })
    }
    function type(text: string) {
        for (const character of text)
            keyClick(character)
    }
    function clickButton(box: var, name: string) {
        const x = box.width - (name === "plus" ? 0.5 : 1.5) * box.buttonWidth
        mouseClick(box, x, box.height / 2)
    }

    function test_keys_data() {
        return [
            { tag: "up", key: Qt.Key_Up, value: 13 },
            { tag: "fine", key: Qt.Key_Down, modifiers: Qt.ShiftModifier, value: 11.9 },
            { tag: "page by Ctrl", key: Qt.Key_Up, modifiers: Qt.ControlModifier, value: 22 },
            { tag: "page", key: Qt.Key_PageDown, value: 2 },
            { tag: "end of the range", body: "to: 12.5", key: Qt.Key_PageUp, value: 12.5 },
            { tag: "around", body: "to: 12; from: -3; wrap: true", key: Qt.Key_Up, value: -3 },
            { tag: "sums without remains", body: "stepSize: 0.1", device: 0.2, key: Qt.Key_Up, value: 0.3, text: "0.3" },
            { tag: "from beyond the range", body: "to: 10", key: Qt.Key_Up, value: 10 },
            { tag: "continuous", body: "stepSize: 0; to: 1000", key: Qt.Key_Up, value: 22 },
            { tag: "negative step", body: "stepSize: -2", key: Qt.Key_Up, value: 14 },
            { tag: "no range", body: "from: 12; to: 12", key: Qt.Key_Up, value: 12, log: [] },
            { tag: "read only", body: "readOnly: true", key: Qt.Key_Up, value: 12, log: [] },
            { tag: "from minus infinity", body: "from: -80; minimumText: 'off'", device: -Infinity, key: Qt.Key_Up, value: -79 },
            { tag: "not a number", body: "from: -5", device: NaN, key: Qt.Key_Up, value: -5 },
            { tag: "mixed", body: "consistent: false", key: Qt.Key_Up, modifiers: Qt.ShiftModifier, value: 12, text: "", log: ["stepped 0.1"] },
        ]
    }
    function test_keys(data) {
        const page = makePage(data.body ?? "")
        page.device = data.device ?? 12
        const log = logOf(page)
        keyClick(data.key, data.modifiers ?? Qt.NoModifier)
        compare(page.field.value, data.value)
        compare(page.field.text, data.text ?? String(data.value))
        if (data.log) {
            compare(log, data.log)
            return
        }
        compare(log, ["edited " + data.value])
        tryCompare(log, "length", 2, 2000, "committed once, after the last key")
        compare(log[1], "committed " + data.value)
    }

    function test_typing_data() {
        return [
            { tag: "number", typed: "7", value: 7 },
            { tag: "comma", typed: "7,5", value: 7.5, text: "7.5" },
            { tag: "beyond the range", typed: "700", rejected: "Enter a number from 0 to 100" },
            { tag: "no number", typed: "x", rejected: "Enter a number from 0 to 100" },
            { tag: "exponent", typed: "1e1", rejected: "Enter a number from 0 to 100" },
            { tag: "nothing", key: Qt.Key_Delete, typed: "", rejected: "Enter a number from 0 to 100" },
            { tag: "below a minimum with a text", body: "from: -80; to: 10; minimumText: 'off'", typed: "-90", rejected: "Enter a number from -80 to 10, or off" },
            { tag: "rounded to steps", body: "stepSize: 5; snapToStep: true", typed: "13", value: 15 },
            { tag: "text of the minimum", body: "from: -80; minimumText: 'off'", typed: "OFF", value: -80, text: "off" },
            { tag: "infinite minimum", body: "from: -Infinity; minimumText: '\u2212\u221e'", typed: "-inf", value: -Infinity, text: "\u2212\u221e" },
            { tag: "converter", body: "to: 20000; converter: RDoubleValueConverter { kilo: true; unit: 'Hz' }", typed: "1.2k", value: 1200, text: "1.2\u00a0kHz" },
        ]
    }
    function test_typing(data) {
        const page = makePage(data.body ?? "")
        const log = logOf(page)
        if (data.key)
            keyClick(data.key)
        type(data.typed)
        compare([page.field.edited, page.device], [true, 12])
        keyClick(Qt.Key_Return)
        if (data.rejected) {
            compare(log, ["rejected " + data.typed + " " + data.rejected])
            keyClick(Qt.Key_Tab)
            compare([page.field.text, page.device], ["12", 12])
            return
        }
        compare([page.device, page.field.text, page.field.edited], [data.value, data.text ?? String(data.value), false])
        compare(log, ["edited " + data.value, "committed " + data.value])
    }

    function test_steppingTypedText() {
        const page = makePage("")
        type("20")
        keyClick(Qt.Key_Up)
        compare(page.device, 21)
        type("x")
        keyClick(Qt.Key_Up)
        compare([page.device, page.field.edited], [21, true], "nothing typed is lost")
    }

    function test_buttons() {
        const page = makePage("to: 13")
        const log = logOf(page)
        clickButton(page.field, "plus")
        compare(log, ["edited 13", "committed 13"])
        verify(!page.field.steps.canStepUp)
        clickButton(page.field, "plus")
        clickButton(page.field, "minus")
        compare(log.slice(2), ["edited 12", "committed 12"])
        const sequence = touchEvent(page.field)
        sequence.press(0, page.field, page.field.width - 5, 5).commit()
        sequence.release(0, page.field, page.field.width - 5, 5).commit()
        compare(page.device, 13)
    }

    function test_stepsThatArePossible() {
        const box = make("RSpinBox { enabled: false; property bool canStep: steps.canStepUp }")
        box.enabled = true
        compare(box.canStep, true)
        box.readOnly = true
        compare(box.canStep, false)
        box.readOnly = false
        box.value = 100
        compare(box.canStep, false)
        box.consistent = false
        compare(box.canStep, true, "the page moves each device")
    }

    function test_heldButton() {
        const page = makePage("")
        const log = logOf(page)
        mousePress(page.field, page.field.width - 5, 5)
        tryVerify(() => page.device >= 15)
        mouseRelease(page.field, page.field.width - 5, 5)
        compare(log.filter(entry => entry.startsWith("committed")), ["committed " + page.device])
        mousePress(page.field, page.field.width - 5, 5)
        page.field.visible = false
        compare(page.field.pressedButton, 0)
        page.field.visible = true
        mousePress(page.field, page.field.width - 5, 5)
        const before = page.field.parent
        page.field.parent = null
        compare(page.field.pressedButton, 0)
        page.field.parent = before
    }

    function test_wheelNeedsFocus() {
        const page = makePage("")
        const other = make("FocusScope {}")
        mouseWheel(page.field, 10, 10, 0, 60)
        compare(page.device, 12)
        mouseWheel(page.field, 10, 10, 0, 60)
        compare(page.device, 13, "small turns add up")
        mouseWheel(page.field, page.field.width - 5, 10, 0, -120)
        compare(page.device, 12)
        other.forceActiveFocus()
        mouseWheel(page.field, 10, 10, 0, 120)
        mouseWheel(page.field, page.field.width - 5, 10, 0, 120)
        compare(page.device, 12)
    }

    function test_reset() {
        const page = makePage("defaultValue: 3")
        mouseDoubleClickSequence(page.field, 12, 10, Qt.LeftButton, Qt.ControlModifier)
        compare(page.device, 3)
    }

    function test_silentDevice() {
        const page = makePage("")
        page.takes = false
        keyClick(Qt.Key_Up)
        compare(page.field.text, "13")
        tryCompare(page.field, "text", "12", 2000)
        page.device = 40
        compare(page.field.value, 40, "the page's binding lives on")
    }

    function test_shownTexts_data() {
        return [
            { tag: "decimals", body: "decimals: 2; value: 0.5", text: "0.50" },
            { tag: "too large", body: "value: 1e9", text: "1000000000", invalid: true },
            { tag: "infinite", body: "value: -Infinity", text: "\u2212\u221e", invalid: true },
            { tag: "not a number", body: "value: NaN", text: "\u2013", invalid: true },
            { tag: "text", body: "value: 'loud'", text: "\u2013", invalid: true },
            { tag: "list", body: "value: [1, 2]", text: "\u2013", invalid: true },
        ]
    }
    function test_shownTexts(data) {
        const box = make(`RSpinBox { ${data.body} }`)
        compare(box.text, data.text)
        compare(box.acceptable, !data.invalid)
    }

    function test_destroyedByItsOwnStep() {
        const page = makePage("onValueCommitted: destroy()")
        mouseClick(page.field, page.field.width - 5, 5)
        wait(0)
        verify(!page.field)
    }

    function test_numberField() {
        const page = makePage("from: 0; to: 500; unit: 'ms'", "RNumberTextField")
        compare(page.field.text, "12.00")
        keyClick(Qt.Key_Up)
        compare(page.device, 12, "no steps unless asked for")
        type("7,25")
        keyClick(Qt.Key_Enter)
        compare([page.device, page.field.text], [7.25, "7.25"])
        page.field.stepSize = -1
        keyClick(Qt.Key_Up)
        compare(page.device, 8.25, "the sign does not count")
    }

    function test_numberFieldWithoutAValue() {
        const field = make("RNumberTextField { stepSize: 1; settleTime: 20 }")
        field.forceActiveFocus()
        const log = logged(field, { valueEdited: "edited" })
        type("7,25")
        keyClick(Qt.Key_Return)
        compare([field.text, log], ["7.25", ["edited 7.25"]])
        keyClick(Qt.Key_Up)
        compare([field.text, log[1]], ["8.25", "edited 8.25"])
        field.clear()
        keyClick(Qt.Key_Return)
        compare([field.text, field.acceptable], ["", true])
    }
}
