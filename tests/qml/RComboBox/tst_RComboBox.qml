import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RComboBox"

    // A page that binds to a device; it takes what is chosen when `takes` is set.
    function makePage(body: string): var {
        const page = make(`FocusScope {
            property var device: 2
            property bool takes: true
            property alias box: inner
            property ListModel sources: ListModel {}
            focus: true
            RComboBox {
                id: inner
                model: parent.sources
                textRole: "name"
                valueRole: "id"
                value: parent.device
                settleTime: 20
                onValueEdited: value => { if (parent.takes) parent.device = value }
                ${body}
            }
        }`)
        for (const [id, name] of [[1, "Input 1"], [2, "Input 2"], [3, "Hall"], [4, "input 3"], [5, "Aux"]])
            page.sources.append({ id: id, name: name, usable: id !== 3, icon: id === 1 ? "mute" : "" })
        page.forceActiveFocus()
        page.box.forceActiveFocus(Qt.TabFocusReason)
        tryCompare(page.box, "currentIndex", 1)
        if (page.box.editable)
            page.box.contentItem.selectAll()
        return page
    }
    function logOf(box: var): var {
        return logged(box, { valueEdited: "edited", activated: "activated", accepted: "accepted" })
    }
    function shown(box: var): string {
        return box.contentItem.text
    }
    function press(keys: var) {
        for (const key of keys)
            keyClick(key)
    }
    function entryAt(box: var, index: int): Item {
        const list = Array.from(box.popup.contentItem.children).find(child => child.itemAtIndex)
        tryVerify(() => list.itemAtIndex(index) !== null)
        return list.itemAtIndex(index)
    }

    function test_keysOfTheClosedBox_data() {
        return [
            { tag: "Up", keys: [Qt.Key_Up], opens: true },
            { tag: "Down", keys: [Qt.Key_Down], opens: true },
            { tag: "Space", keys: [Qt.Key_Space], opens: true },
            { tag: "Enter", keys: [Qt.Key_Return], opens: true },
            { tag: "F4", keys: [Qt.Key_F4], opens: true },
            { tag: "others", keys: [Qt.Key_Home, Qt.Key_End, Qt.Key_PageDown, Qt.Key_A, Qt.Key_I, Qt.Key_Right], opens: false },
            { tag: "read only", body: "readOnly: true", keys: [Qt.Key_Down, Qt.Key_Space], opens: false },
            { tag: "empty", body: "model: []", keys: [Qt.Key_Down, Qt.Key_Space], opens: false },
        ]
    }
    function test_keysOfTheClosedBox(data) {
        const page = makePage("")
        if (data.body)
            page.box[data.body.split(":")[0]] = data.tag === "empty" ? [] : true
        const log = logOf(page.box)
        press(data.keys)
        compare(page.box.popup.visible, data.opens)
        keyClick(Qt.Key_Escape)
        compare(page.box.popup.visible, false)
        compare([page.device, log], [2, []])
    }

    function test_keysOfTheList_data() {
        return [
            { tag: "Down passes over a disabled entry", keys: [Qt.Key_Down], entry: 3 },
            { tag: "Up stops at the first", keys: [Qt.Key_Up, Qt.Key_Up, Qt.Key_Up], entry: 0 },
            { tag: "End and Up", keys: [Qt.Key_End, Qt.Key_Up], entry: 3 },
            { tag: "Home", keys: [Qt.Key_End, Qt.Key_Home], entry: 0 },
            { tag: "PageDown", keys: [Qt.Key_PageDown], entry: 4 },
            { tag: "letters", keys: ["i", "n", "p", "u", "t", " ", "3"], entry: 3 },
            { tag: "the same letter goes on", keys: ["i", "i"], entry: 0 },
            { tag: "letters of a disabled entry", keys: ["h"], entry: 1 },
            { tag: "unknown letters", keys: ["x"], entry: 1 },
        ]
    }
    function test_keysOfTheList(data) {
        const page = makePage("enabledRole: 'usable'")
        const log = logOf(page.box)
        keyClick(Qt.Key_Down)
        compare(page.box.highlightedEntry, 1, "opens at the current entry")
        press(data.keys)
        compare(page.box.highlightedEntry, data.entry)
        compare([page.device, log], [2, []], "nothing is chosen yet")
        keyClick(Qt.Key_Return)
        compare(page.device, page.sources.get(data.entry).id)
        compare(log, [`edited ${page.device}`, `activated ${data.entry}`])
        compare(page.box.popup.visible, false)
    }

    function test_pointer() {
        const page = makePage("enabledRole: 'usable'; iconRole: 'icon'")
        const log = logOf(page.box)
        mouseClick(page.box)
        compare(page.box.popup.visible, true)
        const hall = entryAt(page.box, 2)
        mouseClick(hall)
        compare([page.box.popup.visible, log], [true, []], "disabled")
        const aux = entryAt(page.box, 4)
        mouseMove(aux, 20, 10)
        compare(page.box.highlightedEntry, 4)
        mouseClick(aux)
        compare([page.device, shown(page.box), page.box.popup.visible], [5, "Aux", false])
        compare(log, ["edited 5", "activated 4"])
        mouseClick(page.box)
        mouseClick(page.box)
        compare(page.box.popup.visible, false)
    }

    function test_wheel() {
        const page = makePage("")
        mouseWheel(page.box, 10, 10, 0, -120)
        compare([page.box.currentIndex, page.device], [1, 2])
        page.box.open()
        mouseWheel(page.box, 10, 10, 0, -60)
        mouseWheel(page.box, 10, 10, 0, -60)
        compare([page.box.highlightedEntry, page.box.currentIndex, page.device], [2, 1, 2])
    }

    function test_refusingDevice() {
        const page = makePage("")
        page.takes = false
        page.box.choose(4)
        compare([shown(page.box), page.box.value], ["Aux", 5])
        tryCompare(page.box, "currentIndex", 1)
        compare(shown(page.box), "Input 2")
        page.device = 3
        compare(shown(page.box), "Hall", "the page's binding lives on")
    }

    function test_coloursOfAPage() {
        const box = make("RComboBox { model: 2; ssColor: ssLineColor; ssPopupColor: ssColor; ssLineColor: 'red' }")
        compare(box.ssPopupColor, "#ff0000")
        root.sheet = "light"
        compare(box.ssPopupColor, "#ff0000")
    }

    function test_valuesThatNoEntryHas_data() {
        return [
            { tag: "unknown", value: 77, text: "unknown (77)" },
            { tag: "undefined", value: undefined, text: "" },
            { tag: "null", value: null, text: "" },
            { tag: "NaN", value: NaN, text: "" },
        ]
    }
    function test_valuesThatNoEntryHas(data) {
        const page = makePage("")
        const log = logOf(page.box)
        page.device = data.value
        compare([page.box.currentIndex, shown(page.box), log], [-1, data.text, []])
        page.device = 3
        compare(shown(page.box), "Hall")
    }

    function test_withoutAValue() {
        const box = make("RComboBox { model: ['Pink', 'White']; settleTime: 20 }")
        compare([box.currentIndex, shown(box)], [0, "Pink"], "as the template does")
        const log = logOf(box)
        box.choose(1)
        compare([shown(box), log], ["White", ["edited White", "activated 1"]])
        wait(40)
        compare(shown(box), "White")
        const waiting = make("RComboBox { property QtObject device: QtObject { property var said }\n model: ['Pink', 'White']; value: device.said; settleTime: 20 }")
        compare([waiting.currentIndex, shown(waiting)], [-1, ""], "a device that has not said anything")
        waiting.choose(0)
        wait(40)
        waiting.device.said = "White"
        compare(shown(waiting), "White")
        waiting.choose(0)
        compare([waiting.value, shown(waiting)], ["Pink", "Pink"], "now the value is what a choice edits")
        tryVerify(() => shown(waiting) === "White", undefined, "the page's binding lives on")
    }

    function test_mixed() {
        const page = makePage("consistent: false")
        compare(shown(page.box), "mixed")
        keyClick(Qt.Key_Down)
        compare(page.box.highlightedEntry, -1)
        press([Qt.Key_Down, Qt.Key_Return])
        compare([page.device, shown(page.box)], [1, "Input 1"])
        tryCompare(page.box, "mixed", true)
        compare(shown(page.box), "mixed")
    }

    function test_modelThatChangesUnderTheOpenList() {
        const page = makePage("")
        keyClick(Qt.Key_Down)
        press([Qt.Key_Down])
        compare(page.box.highlightedEntry, 2)
        page.sources.insert(0, { id: 9, name: "First" })
        compare(page.box.highlightedEntry, 3)
        page.sources.move(3, 1, 1)
        compare(page.box.highlightedEntry, 1, "still Hall")
        tryCompare(page.box, "currentIndex", 3)
        compare(shown(page.box), "Input 2")
        page.sources.remove(1)
        compare(page.box.highlightedEntry, -1)
        keyClick(Qt.Key_Return)
        compare([page.device, page.box.popup.visible], [2, false], "nothing took its place")
        keyClick(Qt.Key_Down)
        page.sources.clear()
        compare(page.box.popup.visible, false)
        tryVerify(() => shown(page.box) === "unknown (2)")
        page.sources.append({ id: 2, name: "Back" })
        tryVerify(() => shown(page.box) === "Back")
    }
    function test_listOfMapsReplacedUnderTheOpenList() {
        const page = makePage("")
        keyClick(Qt.Key_Down)
        press([Qt.Key_Down, Qt.Key_Down])
        page.box.model = [{ id: 2, name: "Input 2" }, { id: 7, name: "New" }, { id: 1, name: "Input 1" }, { id: 8, name: "Other" }]
        keyClick(Qt.Key_Return)
        compare(page.device, 2, "none is taken in the place of another")
        keyClick(Qt.Key_Down)
        page.box.model = undefined
        compare(page.box.popup.visible, false)
    }
    function test_hiddenBoxKeepsItsListShut() {
        const page = makePage("")
        page.box.visible = false
        keyClick(Qt.Key_Return)
        compare(page.box.popup.visible, false)
    }

    function test_handlersThatTakeAway_data() {
        return [
            { tag: "the entries", take: page => page.sources.clear() },
            { tag: "the chosen entry", take: page => page.sources.remove(4) },
            { tag: "the model", take: page => page.box.model = null },
            { tag: "the page", take: page => page.destroy() },
        ]
    }
    function test_handlersThatTakeAway(data) {
        const page = makePage("")
        page.box.valueEdited.connect(() => data.take(page))
        mouseClick(page.box)
        mouseClick(entryAt(page.box, 4))
        wait(40)
        if (data.tag === "the page")
            return
        compare(page.device, 5)
        verify(page.box.currentIndex < page.box.count)
    }

    function test_typedTexts_data() {
        return [
            { tag: "an entry in other letters", typed: "HALL", end: Qt.Key_Return, text: "Hall", log: ["edited 3", "activated 2", "accepted"] },
            { tag: "a text of its own", typed: "Foyer", end: Qt.Key_Return, text: "Foyer", log: ["accepted"] },
            { tag: "Esc", typed: "Foyer", end: Qt.Key_Escape, text: "Input 2", log: [] },
        ]
    }
    function test_typedTexts(data) {
        const page = makePage("editable: true")
        const log = logOf(page.box)
        for (const letter of data.typed)
            keyClick(letter)
        compare(page.box.editing, true)
        keyClick(data.end)
        compare(log, data.log)
        tryVerify(() => shown(page.box) === data.text)
        if (data.tag === "a text of its own") {
            compare([page.box.currentIndex, page.box.editText], [-1, "Foyer"])
            tryVerify(() => shown(page.box) === "Input 2", undefined, "the page did not take it")
        }
    }

    function test_listOfAnEditableBox() {
        const page = makePage("editable: true")
        keyClick(Qt.Key_Down)
        compare([page.box.popup.visible, page.box.highlightedEntry], [true, 1])
        keyClick("a")
        compare(page.box.highlightedEntry, 4, "follows what is typed")
        press([Qt.Key_Up, Qt.Key_Return])
        compare([page.device, shown(page.box), page.box.editing], [4, "input 3", false], "the highlight was moved last")
    }

    function test_sizeOfTheList() {
        const box = make("RComboBox { width: 60; model: 40 }")
        box.open()
        compare(box.popup.height, 8 * 32 + 2)
        compare(box.popup.width, 60)
        box.close()
        box.model = ["A name that is much wider than the box"]
        box.open()
        tryCompare(box.popup, "width", 120)
        compare(box.popup.height, 34)
    }

    function test_manyEntries() {
        const names = Array.from({ length: 10000 }, (_, i) => `Channel ${i}`)
        const box = make("RComboBox { property var names: []; model: names; value: 'Channel 9000' }")
        box.names = names
        compare(box.currentIndex, 9000)
        box.open()
        const made = entryAt(box, 9000).parent.children.length
        verify(made < 60, `${made} rows were made`)
    }
}
