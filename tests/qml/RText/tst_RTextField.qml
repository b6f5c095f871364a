import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RTextField"

    // A page that binds to a device; it takes what is entered when `takes` is set.
    function makePage(body: string): var {
        const page = make(`FocusScope {
            property var device: "Hall"
            property bool takes: true
            property alias field: inner
            property alias other: neighbour
            focus: true
            RTextField {
                id: inner
                value: parent.device
                settleTime: 20
                onValueEdited: (value) => { if (parent.takes) parent.device = value }
                ${body}
            }
            TextInput { id: neighbour; y: 40; width: 50; activeFocusOnTab: true }
        }`)
        page.forceActiveFocus()
        page.field.forceActiveFocus(Qt.TabFocusReason)
        return page
    }
    function logOf(page: var): var {
        return logged(page.field, { valueEdited: "edited", valueCommitted: "committed", editCanceled: "canceled",
                                    rejected: "rejected", valueWaits: "waits" })
    }
    function type(text: string) {
        for (const character of text)
            keyClick(character)
    }

    function test_typedTextWaitsForEnter() {
        const page = makePage("")
        const log = logOf(page)
        compare(page.field.selectedText, "Hall", "the Tab key selects all")
        type("Bar")
        compare([page.field.text, page.field.value, page.field.edited], ["Bar", "Hall", true])
        keyClick(Qt.Key_Return)
        compare([page.field.value, page.field.edited, page.device], ["Bar", false, "Bar"])
        compare(page.field.selectedText, "Bar")
        compare(log, ["edited Bar", "committed Bar"])
        page.device = "Foyer"
        compare(page.field.text, "Bar", "shown while the edit settles")
        tryCompare(page.field, "text", "Foyer", undefined, "the page's binding lives on")
    }

    function test_endsOfAnEdit_data() {
        return [
            { tag: "Esc", end: () => keyClick(Qt.Key_Escape), text: "Hall", log: ["canceled"] },
            { tag: "Tab", end: () => keyClick(Qt.Key_Tab), text: "Bar", log: ["edited Bar", "committed Bar"] },
            { tag: "Tab from an unacceptable text", body: "validator: RTextFieldIntValidator {}", typed: "-", end: () => keyClick(Qt.Key_Tab), text: "Hall", log: ["canceled"] },
            { tag: "Tab with an edit that is to wait", body: "commitOnFocusLoss: false", end: () => keyClick(Qt.Key_Tab), text: "Bar", edited: true, log: [] },
            { tag: "typed back", typed: "Hall", end: () => keyClick(Qt.Key_Return), text: "Hall", log: [] },
            { tag: "outer blanks", typed: " Bar  ", end: () => keyClick(Qt.Key_Return), text: "Bar", log: ["edited Bar", "committed Bar"] },
            { tag: "blanks that count", typed: " Bar", body: "trim: false", end: () => keyClick(Qt.Key_Return), text: " Bar", log: ["edited  Bar", "committed  Bar"] },
        ]
    }
    function test_endsOfAnEdit(data) {
        const page = makePage(data.body ?? "")
        const log = logOf(page)
        type(data.typed ?? "Bar")
        data.end()
        compare([page.field.text, page.field.edited], [data.text, data.edited ?? false])
        compare(log, data.log)
    }

    function test_refusals_data() {
        return [
            { tag: "validator", body: "validator: RTextFieldIpAddressValidator {}", typed: "10.0" },
            { tag: "required", body: "required: true", key: Qt.Key_Delete },
            { tag: "converter", body: "converter: RDoubleValueConverter {}", typed: "x" },
        ]
    }
    function test_refusals(data) {
        const page = makePage(data.body)
        const log = logOf(page)
        if (data.key)
            keyClick(data.key)
        type(data.typed ?? "")
        verify(!page.field.acceptable)
        keyClick(Qt.Key_Return)
        compare(log.length, 1)
        verify(log[0].startsWith("rejected " + (data.typed ?? "")), log[0])
        verify(log[0].endsWith(page.field.invalidText), log[0])
        compare([page.field.text, page.field.edited], [data.typed ?? "", true], "nothing typed is lost")
    }

    function test_errorOfThePageCountsUntilTheNextEdit() {
        const page = makePage("errorText: 'in use'")
        compare([page.field.acceptable, page.field.invalidText], [false, "in use"])
        type("B")
        verify(page.field.acceptable)
    }

    function test_refusingDevice() {
        const page = makePage("")
        page.takes = false
        type("Bar")
        keyClick(Qt.Key_Return)
        compare(page.field.text, "Bar")
        tryCompare(page.field, "text", "Hall")
    }

    function test_valueOfAnotherClientWaits() {
        const page = makePage("")
        const log = logOf(page)
        type("Ba")
        page.device = "Foyer"
        compare([page.field.text, log], ["Ba", ["waits"]])
        compare(page.field.edit.bubbleText, "Changed meanwhile to Foyer")
        page.field.echoMode = TextInput.Password
        page.device = "Dome"
        compare(page.field.edit.bubbleText, "Changed meanwhile")
        page.field.echoMode = TextInput.Normal
        page.device = "Foyer"
        keyClick(Qt.Key_Escape)
        compare(page.field.text, "Foyer")
    }

    function test_typedStaysWhenWhatWaitsEqualsItForAWhile() {
        const page = makePage("")
        type("Roo")
        page.device = "Roof"
        type("f")
        page.device = "Foyer"
        compare([page.field.text, page.field.edited], ["Roof", true])
        keyClick(Qt.Key_Return)
        compare(page.device, "Roof")
    }

    function test_mixed() {
        const page = makePage("consistent: false")
        const log = logOf(page)
        compare([page.field.text, page.field.placeholderText, page.field.edited, page.field.acceptable], ["", "mixed", false, true])
        type("All")
        keyClick(Qt.Key_Enter)
        compare(log, ["edited All", "committed All"])
        compare(page.field.text, "All", "shown while the edit settles")
        page.field.consistent = true
        compare(page.field.text, "All")
        page.device = "Foyer"
        tryCompare(page.field, "text", "Foyer")
    }

    function test_bytesEndAtWholeCharacters() {
        const page = makePage("maximumBytes: 7")
        type("abcdefgh")
        compare(page.field.text, "abcdefg", "a key too many is refused")
        const editor = make("TextInput { text: '\u00fc\u00fc\u00fc\u00fc' }")
        editor.selectAll()
        editor.copy()
        page.field.selectAll()
        page.field.paste()
        compare(page.field.text, "\u00fc\u00fc\u00fc", "a paste is cut")
    }

    function test_enterOfAnUneditedFieldGoesOn() {
        const page = makePage("")
        let passed = 0
        page.Keys.returnPressed.connect(() => ++passed)
        keyClick(Qt.Key_Return)
        compare(passed, 1)
        type("x")
        keyClick(Qt.Key_Return)
        compare(passed, 1)
    }

    function test_undoOfWhatWasEntered_data() {
        return [
            { tag: "untouched", type: () => {}, undone: 1, text: "Hall" },
            { tag: "typed", type: () => type("Bar"), undone: 0, text: "Hall" },
            { tag: "entered", type: () => { type("Bar"); keyClick(Qt.Key_Return) }, undone: 1, text: "Bar" },
            { tag: "entered into a mixed one", body: "consistent: false", type: () => { type("Bar"); keyClick(Qt.Key_Return) }, undone: 1, text: "Bar" },
        ]
    }
    function test_undoOfWhatWasEntered(data) {
        const page = makePage((data.body ?? "") + "\nproperty int undone: 0\nShortcut { sequence: \"Ctrl+Z\"; onActivated: inner.undone += 1 }")
        data.type()
        keyClick(Qt.Key_Z, Qt.ControlModifier)
        compare([page.field.undone, page.field.text, page.field.edited], [data.undone, data.text, false])
    }

    function test_plainField() {
        const field = make("RTextField { text: 'one' }")
        field.forceActiveFocus(Qt.TabFocusReason)
        const log = logged(field, { valueEdited: "edited", editCanceled: "canceled" })
        type("two")
        keyClick(Qt.Key_Escape)
        compare(field.text, "one")
        field.selectAll()
        type("two")
        keyClick(Qt.Key_Return)
        field.selectAll()
        type("x")
        keyClick(Qt.Key_Escape)
        compare([field.text, field.value, log], ["two", undefined, ["canceled", "edited two", "canceled"]])
    }

    function test_readOnly() {
        const page = makePage("readOnly: true")
        const log = logOf(page)
        type("x")
        keyClick(Qt.Key_Return)
        compare([page.field.text, log], ["Hall", []])
    }

    function test_lockedWhileTyping_data() {
        return [
            { tag: "read only", lock: field => field.readOnly = true },
            { tag: "disabled", lock: field => field.enabled = false },
        ]
    }
    function test_lockedWhileTyping(data) {
        const page = makePage("")
        type("Bar")
        data.lock(page.field)
        keyClick(Qt.Key_Return)
        compare(page.field.edit.bubbleText, page.field.enabled ? "This cannot be edited" : "")
        page.other.forceActiveFocus()
        compare([page.device, page.field.text], ["Hall", "Hall"], "what cannot be edited is not entered")
    }

    function test_bubble_data() {
        return [
            { tag: "key kept out", body: "validator: RTextFieldIntValidator { bottom: 0; top: 9 }", typed: "x", bubble: "Enter a whole number from 0 to 9" },
            { tag: "not acceptable yet", body: "validator: RTextFieldIpAddressValidator {}", typed: "1", bubble: "Enter an address such as 192.168.1.10" },
            { tag: "cut", body: "maximumBytes: 2", typed: "abc", bubble: "Cut to 2 bytes" },
            { tag: "blank removed", typed: "ab ", key: Qt.Key_Return, bubble: "Blanks at the ends were removed" },
            { tag: "fine", typed: "ab", bubble: "" },
        ]
    }
    function test_bubble(data) {
        const page = makePage(data.body ?? "")
        type(data.typed)
        if (data.key)
            keyClick(data.key)
        compare(page.field.edit.bubbleText, data.bubble)
        const bubble = findChild(page.field, "bubble")
        compare(Boolean(bubble && bubble.visible), data.bubble !== "")
        page.other.forceActiveFocus(Qt.TabFocusReason)
        compare(page.field.edit.bubbleText, "", "gone with the focus")
    }

    function test_untouchedFieldIsNotScolded() {
        const page = makePage("required: true")
        page.device = ""
        compare([page.field.acceptable, page.field.edit.bubbleText], [false, ""])
    }

    function test_clearAndReveal() {
        const page = makePage("clearable: true; revealable: true; echoMode: TextInput.Password")
        mouseClick(findChild(page.field, "reveal"))
        compare([page.field.echoMode, page.field.edited], [TextInput.Normal, false])
        mouseClick(findChild(page.field, "reveal"))
        compare(page.field.echoMode, TextInput.Password)
        mouseClick(findChild(page.field, "clear"))
        compare([page.field.text, page.field.edited, page.device], ["", true, "Hall"], "waits for Enter")
    }

    function test_mirrored() {
        const field = make("RTextField { iconKey: 'search'; clearable: true; confirmed: false; LayoutMirroring.enabled: true }")
        const clear = findChild(field, "clear").parent
        compare([field.leftPadding, field.rightPadding], [56, 32])
        compare([clear.x, clear.x + clear.width <= field.leftPadding], [16, true], "beside the text")
    }

    function test_paste_data() {
        return [
            { tag: "line breaks", copied: "a\nb", text: "a ball" },
            { tag: "what the validator does not take", body: "validator: RTextFieldIpAddressValidator {}", copied: "x", text: "Hall", bubble: "Enter an address such as 192.168.1.10" },
        ]
    }
    function test_paste(data) {
        const page = makePage(data.body ?? "")
        const editor = make("TextEdit {}")
        editor.text = data.copied
        editor.selectAll()
        editor.copy()
        page.field.select(0, 1)
        page.field.paste()
        compare([page.field.text, page.field.edit.bubbleText], [data.text, data.bubble ?? ""])
    }

    function test_contextMenu_data() {
        return [
            { tag: "right button", open: field => mouseClick(field, 10, 10, Qt.RightButton) },
            { tag: "Menu key", open: () => keyClick(Qt.Key_Menu) },
            { tag: "Shift+F10", open: () => keyClick(Qt.Key_F10, Qt.ShiftModifier) },
            { tag: "resting finger", open: field => {
                const finger = touchEvent(field)
                finger.press(0, field, 10, 10).commit()
                tryVerify(() => !field.activeFocus)
                finger.release(0, field, 10, 10).commit()
                wait(0)
            } },
        ]
    }
    function test_contextMenu(data) {
        const page = makePage("")
        type("Bar")
        data.open(page.field)
        tryVerify(() => !page.field.activeFocus, 2000, "the menu has the focus")
        compare([page.field.edited, page.device], [true, "Hall"], "nothing is entered for it")
        keyClick(Qt.Key_Escape)
        tryVerify(() => page.field.activeFocus)
        compare(page.field.text, "Bar")
    }

    function test_errorOfMixedField() {
        const page = makePage("consistent: false; errorText: 'in use'")
        compare(page.field.invalidText, "in use")
    }

    function test_missingValueIsNoFaultOfTheUser() {
        const page = makePage("converter: RDoubleValueConverter {}")
        page.device = NaN
        compare([page.field.text, page.field.acceptable], ["\u2013", true])
    }

    function test_firstClickSelectsAll() {
        const page = makePage("")
        page.other.forceActiveFocus()
        mouseClick(page.field, 20, 10)
        compare(page.field.selectedText, "Hall")
        mouseClick(page.field, 20, 10)
        compare(page.field.selectedText, "")
    }
}
