import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RListView"

    readonly property string words: "model: ['Ada', 'Bea', 'Bert', 'Cleo', 'Dora', 'Emil']"

    ListModel {
        id: rows
    }

    function fill(count: int) {
        rows.clear()
        for (let i = 0; i < count; ++i)
            rows.append({ name: "Row " + i })
    }
    /*! A list of 160 pixels, 5 rows, and what it signals. */
    function makeList(body: string): var {
        const list = make(`RListView { width: 200; height: 160; label: 'Devices'; property var log: []
            onSelectionEdited: indexes => log.push('edited ' + Array.from(indexes).join(','))
            onActivated: index => log.push('activated ' + index)
            onContextMenuRequested: (index, position) => log.push('menu ' + index); ${body} }`)
        list.forceActiveFocus()
        waitForRendering(list)
        return list
    }
    function listOfRows(count: int, body: string): var {
        fill(count)
        const list = makeList("textRole: 'name'; " + body)
        list.model = rows
        waitForRendering(list)
        return list
    }
    function selected(list: var): string {
        return Array.from(list.selectedIndexes).join(",")
    }
    function state(list: var): var {
        return [list.currentIndex, selected(list)]
    }

    function test_keys_data() {
        const many = "selectionMode: RListView.Multiple; "
        return [
            { tag: "down", keys: [Qt.Key_Down, Qt.Key_Down], state: [2, "2"] },
            { tag: "home, end", keys: [Qt.Key_End, Qt.Key_Home], state: [0, "0"] },
            { tag: "stops at the end", keys: [Qt.Key_End, Qt.Key_Down], state: [5, "5"] },
            { tag: "loop", body: "loop: true", keys: [Qt.Key_Up], state: [5, "5"] },
            { tag: "page", keys: [Qt.Key_PageDown], state: [4, "4"] },
            { tag: "none", body: "selectionMode: RListView.None", keys: [Qt.Key_Down, Qt.Key_Space], state: [1, ""] },
            { tag: "without selecting", keys: [[Qt.Key_Down, Qt.ControlModifier]], state: [1, ""] },
            { tag: "space", keys: [[Qt.Key_Down, Qt.ControlModifier], Qt.Key_Space], state: [1, "1"] },
            { tag: "extended", body: many, keys: [Qt.Key_Down, [Qt.Key_Down, Qt.ShiftModifier], [Qt.Key_Down, Qt.ShiftModifier], [Qt.Key_Up, Qt.ShiftModifier]], state: [2, "1,2"] },
            { tag: "extended, one only", keys: [Qt.Key_Down, [Qt.Key_Down, Qt.ShiftModifier]], state: [2, "2"] },
            { tag: "toggled", body: many, keys: [Qt.Key_Down, [Qt.Key_End, Qt.ControlModifier], [Qt.Key_Space, Qt.ControlModifier]], state: [5, "1,5"] },
            { tag: "all", body: many, keys: [[Qt.Key_A, Qt.ControlModifier]], state: [0, "0,1,2,3,4,5"] },
            { tag: "not all", keys: [[Qt.Key_A, Qt.ControlModifier]], state: [0, ""] },
            { tag: "escape", keys: [Qt.Key_Down, Qt.Key_Escape], state: [1, ""] },
            { tag: "letter", keys: [Qt.Key_C], state: [3, "3"] },
            { tag: "same letter again", keys: [Qt.Key_B, Qt.Key_B, Qt.Key_B], state: [1, "1"] },
            { tag: "letters", keys: [Qt.Key_B, Qt.Key_E, Qt.Key_R], state: [2, "2"] },
            { tag: "nothing begins so", keys: [Qt.Key_X], state: [0, ""] },
            { tag: "no type-ahead", body: "typeAhead: false", keys: [Qt.Key_C], state: [0, ""] }
        ]
    }
    function test_keys(row) {
        const list = makeList(root.words + "; " + (row.body ?? ""))
        for (const key of row.keys)
            keyClick(...(Array.isArray(key) ? key : [key]))
        compare(state(list), row.state)
        compare(list.log.filter(entry => entry.startsWith("edited")).pop() ?? "edited ", "edited " + row.state[1], "the last that was said")
    }

    function test_clicks_data() {
        const many = "selectionMode: RListView.Multiple; "
        return [
            { tag: "click", clicks: [[1], [3]], state: [3, "3"] },
            { tag: "control", clicks: [[1], [1, Qt.ControlModifier]], state: [1, ""] },
            { tag: "several", body: many, clicks: [[1], [3, Qt.ControlModifier]], state: [3, "1,3"] },
            { tag: "range", body: many, clicks: [[1], [4, Qt.ShiftModifier], [3, Qt.ShiftModifier]], state: [3, "1,2,3"] },
            { tag: "not interactive", body: "interactive: false; ", clicks: [[1]], state: [1, "1"] },
            { tag: "a control in the row", body: "delegate: RButton { required property string modelData; width: 200; text: modelData }", clicks: [[2]], state: [2, "2"] }
        ]
    }
    function test_clicks(row) {
        const list = makeList(root.words + "; " + (row.body ?? ""))
        for (const [index, modifiers] of row.clicks)
            mouseClick(list, 50, 32 * index + 16, Qt.LeftButton, modifiers ?? Qt.NoModifier)
        compare(state(list), row.state)
        verify(list.activeFocus)
    }

    function test_pressesThatAreNoClicks() {
        const list = makeList(root.words)
        mousePress(list, 50, 16)
        mouseMove(list, 50, 60)
        mouseRelease(list, 50, 60)
        compare(selected(list), "", "dragged")
        mouseClick(list, 50, 16, Qt.MiddleButton)
        compare(selected(list), "", "another button")
        list.model = ["Ada"]
        mouseClick(list, 50, 100)
        compare(selected(list), "", "below the rows")
    }

    function test_activated() {
        const list = makeList(root.words)
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Return)
        mouseDoubleClickSequence(list, 50, 80)
        compare(list.log, ["edited 1", "activated 1", "edited 2", "activated 2"])
    }

    /*! Enter in a list that nobody listens to is the dialog's. */
    function test_enterGoesOn() {
        const page = make(`Item { property int keys: 0; property alias list: list; Keys.onReturnPressed: keys += 1
            RListView { id: list; label: 'x'; model: 3; focus: true } }`)
        page.list.forceActiveFocus()
        keyClick(Qt.Key_Return)
        compare(page.keys, 1)
        keyClick(Qt.Key_Escape)
    }

    function test_contextMenu() {
        const list = makeList("selectionMode: RListView.Multiple; " + root.words)
        list.selectedIndexes = [0, 1]
        mouseClick(list, 50, 48, Qt.RightButton)
        compare(list.log.splice(0), ["menu 1"], "of all that are selected")
        mouseClick(list, 50, 112, Qt.RightButton)
        compare(list.log.splice(0), ["edited 3", "menu 3"])
        keyClick(Qt.Key_Menu)
        keyClick(Qt.Key_F10, Qt.ShiftModifier)
        compare(list.log.splice(0), ["menu 3", "menu 3"])
        mousePress(list, 50, 16)
        tryCompare(list, "log", ["edited 0", "menu 0"], 2000)
        mouseRelease(list, 50, 16)
        compare(selected(list), "0", "the release is no click any more")
    }

    function tap(list: Item, index: int) {
        const touch = touchEvent(list)
        touch.press(0, list, 50, 32 * index + 16).commit()
        touch.release(0, list, 50, 32 * index + 16).commit()
    }
    function test_touch() {
        const single = makeList(root.words)
        tap(single, 1)
        tap(single, 2)
        compare([selected(single), single.log], ["2", ["edited 1", "edited 2"]])
        tap(single, 2)
        compare(single.log.pop(), "activated 2", "a double tap")

        const several = makeList("y: 140; selectionMode: RListView.Multiple; " + root.words)
        tap(several, 1)
        tap(several, 2)
        compare(selected(several), "1,2")
        tap(several, 1)
        compare(selected(several), "2")
    }

    function test_functions() {
        const list = makeList("selectionMode: RListView.Multiple; " + root.words)
        list.selectRange(4, 2)
        verify(list.isSelected(3))
        list.toggle(0)
        list.toggle(3)
        compare(selected(list), "0,2,4")
        for (const index of [-1, 6, 1e9]) {
            list.select(index)
            list.toggle(index)
        }
        list.selectRange(-5, -1)
        list.selectRange(6, 9)
        compare(selected(list), "0,2,4", "there are no such rows")
        list.selectRange(-5, 1)
        compare(selected(list), "0,1")
        list.selectedIndexes = [7, 5, 5, -1, 1]
        compare(selected(list), "1,5")
        list.selectionMode = RListView.Single
        compare(selected(list), "1")
        list.clearSelection()
        compare([selected(list), list.log], ["", []], "functions edit nothing")
    }

    function test_selectedAtTheStart() {
        compare(selected(makeList("selectedIndexes: [1, 9]; selectionMode: RListView.Multiple; " + root.words)), "1")
    }

    /*! How the current row and the selection follow a model. */
    function test_changes_data() {
        return [
            { tag: "inserted", change: () => rows.insert(0, { name: "New" }), state: [3, "2,3"] },
            { tag: "removed above", change: () => rows.remove(0), state: [1, "0,1"] },
            { tag: "a selected one removed", change: () => rows.remove(1), state: [1, "1"] },
            { tag: "moved", change: () => rows.move(1, 4, 1), state: [1, "1,4"] },
            { tag: "current one removed", change: () => rows.remove(2), state: [-1, "1"], next: 2 },
            { tag: "several", change: () => { rows.remove(2); rows.remove(0); rows.append({ name: "New" }) }, state: [-1, "0"], next: 2 },
            { tag: "all removed", change: () => rows.clear(), state: [-1, ""] },
            { tag: "all removed and others added", change: () => root.fill(3), state: [-1, ""], next: 0 }
        ]
    }
    function test_changes(row) {
        const list = listOfRows(6, "selectionMode: RListView.Multiple")
        list.selectRange(1, 2)
        list.currentIndex = 2
        row.change()
        compare(selected(list), row.state[1])
        waitForRendering(list)
        compare(state(list), row.state, "and when it is shown")
        if (row.next !== undefined) {
            keyClick(Qt.Key_Return)
            compare(list.log, [], "Enter uses no row that the user has not gone to")
            keyClick(Qt.Key_Down)
            compare(list.currentIndex, row.next)
        }
    }

    function test_anotherModel() {
        const list = makeList(root.words)
        list.select(2)
        list.model = ["Left", "Right", "Sub"]
        compare(selected(list), "", "which may be about other devices")
        list.select(1)
        list.model = rows
        list.model = 4
        list.select(3)
        list.model = null
        compare(selected(list), "")
        list.model = 2
        compare(list.itemAtIndex(1).text, "1")
    }

    function test_texts_data() {
        return [
            { tag: "texts", model: ["A", "B"] },
            { tag: "maps", model: [{ name: "A" }, { name: "B" }] },
            { tag: "nothing", model: [null, undefined], texts: ["", ""] },
            { tag: "another member", model: [{ id: 1 }, { name: 5 }], texts: ["", "5"] }
        ]
    }
    function test_texts(row) {
        const list = makeList("textRole: 'name'")
        list.model = row.model
        list.forceLayout()
        compare([0, 1].map(index => list.itemAtIndex(index).text), row.texts ?? ["A", "B"])
    }

    function test_textsFollowTheModel() {
        const list = listOfRows(3, "")
        rows.setProperty(1, "name", "Renamed")
        tryCompare(list.itemAtIndex(1), "text", "Renamed")
        list.textRole = "none"
        tryCompare(list.itemAtIndex(1), "text", "Renamed", 1000, "the only role there is")
    }

    function test_sorted() {
        fill(0)
        for (const name of ["C", "A", "D", "B"])
            rows.append({ name: name })
        const page = make(`Item { property alias list: list; property alias sorter: sorter
            RSortFilterProxyModel { id: sorter; sortRoleName: 'name' }
            RListView { id: list; width: 200; height: 160; label: 'x'; textRole: 'name'; selectionMode: RListView.Multiple; model: sorter } }`)
        page.sorter.sourceModel = rows
        const list = page.list
        list.forceActiveFocus()
        const names = () => Array.from(list.selectedIndexes).map(index => list.itemAtIndex(index).text).join("")
        waitForRendering(list)
        list.selectedIndexes = [0, 2]
        list.currentIndex = 2
        compare(names(), "AC")
        page.sorter.sortOrder = Qt.DescendingOrder
        waitForRendering(list)
        compare([names(), list.currentIndex], ["CA", 1])
        page.sorter.filterRoleNames = ["name"]
        page.sorter.filterPattern = "A"
        waitForRendering(list)
        compare([names(), list.currentIndex], ["A", -1])
    }

    function test_manyRows() {
        const list = makeList("selectionMode: RListView.Multiple; model: 100000")
        const start = Date.now()
        keyClick(Qt.Key_A, Qt.ControlModifier)
        keyClick(Qt.Key_End)
        keyClick(Qt.Key_Home, Qt.ShiftModifier)
        keyClick(Qt.Key_9)
        verify(Date.now() - start < 2000)
        compare(list.currentIndex, 9)
        list.selectRange(0, 99999)
        compare(list.selectedIndexes.length, 100000)
    }

    /*! What is drawn, in the theme's colours. */
    function test_highlight() {
        const list = makeList("selectedIndexes: [1]; " + root.words)
        mouseMove(list, 100, 80)
        waitForRendering(list)
        const image = grabImage(list)
        const at = y => String(image.pixel(150, y))
        compare([at(48), at(80)], [list.ssBackgroundItemSelected, list.ssBackgroundItemHover].map(String))
        verify(at(112) !== at(80))
        compare(String(image.pixel(6, 48)), String(list.ssForegroundItemSelected), "the bar")
        compare(list.itemAtIndex(1).color, list.ssForegroundItemSelected)
    }

    function test_delegates_data() {
        return [
            { tag: "told", body: "property bool selected: false; property bool hovered: false", filled: true },
            { tag: "not told", body: "", filled: false },
            { tag: "read-only", body: "readonly property bool selected: false", filled: false }
        ]
    }
    function test_delegates(row) {
        const list = makeList(root.words + "; delegate: Item { width: 200; height: 32; " + row.body + " }")
        mouseMove(list, 100, 80)
        list.select(1)
        waitForRendering(list)
        const item = list.itemAtIndex(1)
        compare(item.children.length, 1)
        compare(item.children[0].filled, row.filled)
        compare(list.itemAtIndex(2).children.length, row.tag === "told" ? 1 : 0, "the pointer is above it")
        list.clearSelection()
        waitForRendering(list)
        verify(!item.children[0].visible)
    }

    function test_reuse() {
        const list = listOfRows(200, "")
        list.select(0)
        waitForRendering(list)
        for (let i = 0; i < 200; i += 7) {
            list.positionViewAtIndex(i, ListView.Beginning)
            waitForRendering(list)
            const item = list.itemAtIndex(i)
            compare([item.text, item.selected], ["Row " + i, i === 0])
        }
    }

    /*! A page appears before rows that nobody sees are made. */
    function test_rowsBeyondTheEnds() {
        const list = make(`RListView { width: 200; height: 160; visible: false; model: 100; property int made: 0
            delegate: Item { width: 200; height: 32; Component.onCompleted: ListView.view.made += 1 } }`)
        list.forceLayout()
        verify(list.made <= 6)
        list.visible = true
        tryVerify(() => list.made >= 15)
    }

    /*! What a page does when it is told something. */
    function test_handlers_data() {
        return [
            { tag: "no rows", action: list => rows.clear() },
            { tag: "fewer rows", action: list => rows.count > 1 ? rows.remove(1, rows.count - 1) : undefined },
            { tag: "another model", action: list => list.model = 3 },
            { tag: "no delegate", action: list => list.delegate = null },
            { tag: "destroyed", action: list => list.destroy() },
            { tag: "nothing selected", action: list => list.clearSelection() },
            { tag: "another mode", action: list => list.selectionMode = RListView.None }
        ]
    }
    function test_handlers(row) {
        for (const name of ["selectedIndexesChanged", "selectionEdited", "currentIndexChanged", "activated", "contextMenuRequested"]) {
            for (const act of [list => keyClick(Qt.Key_Down), list => keyClick(Qt.Key_Return),
                               list => mouseClick(list, 50, 80, Qt.RightButton), list => mouseDoubleClickSequence(list, 50, 80), list => tap(list, 2)]) {
                const list = listOfRows(5, "selectionMode: RListView.Multiple")
                list[name].connect(() => row.action(list))
                act(list)
                wait(0)
            }
        }
    }

    function test_placeholder() {
        const list = makeList("model: 0; placeholderText: 'No device'")
        const text = Array.from(list.children).find(child => child.text === "No device")
        verify(text.visible)
        list.model = 1
        verify(!text.visible)
    }

    function test_laidOutLate_data() {
        return [
            { tag: "no width", width: 0, height: 160 },
            { tag: "neither", width: 0, height: 0 },
            { tag: "less than nothing", width: -2, height: -2 }
        ]
    }
    /*! Rows that were made before the list had a size, as within the margins of an item that gets its own later. */
    function test_laidOutLate(row) {
        const list = makeList(root.words)
        const frame = make(`Item { RListView { anchors.fill: parent; label: 'Devices'; ${root.words} } }`)
        frame.width = row.width
        frame.height = row.height
        const late = frame.children[0]
        late.forceLayout()
        wait(20)
        frame.width = 200
        frame.height = 160
        waitForRendering(late)
        for (let i = 0; i < 5; ++i)
            compare([late.itemAtIndex(i).text, late.itemAtIndex(i).width], [list.itemAtIndex(i).text, 200])
    }

    function test_mirrored() {
        const list = makeList("LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true; selectedIndexes: [0]; " + root.words)
        compare(list.itemAtIndex(0).effectiveHorizontalAlignment, Text.AlignRight)
        compare(String(grabImage(list).pixel(193, 16)), String(list.ssForegroundItemSelected), "the bar is at the right")
    }

    function test_horizontal() {
        const list = makeList("orientation: ListView.Horizontal; " + root.words)
        keyClick(Qt.Key_Right)
        keyClick(Qt.Key_Right)
        keyClick(Qt.Key_Left)
        compare(state(list), [1, "1"])
        verify(list.itemAtIndex(1).width < 100)
    }
}
