import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RMenu"

    readonly property string entries: "[{ text: '&Copy', iconKey: 'copy', shortcut: 'Ctrl+C', data: 7 }, { separator: true },
        { text: 'Off', enabled: false }, { text: 'Mute', checked: true }, { text: 'More', items: [{ text: 'Inner', data: 8 }] }]"

    /*! A menu at a button, and what it signals. */
    function makeMenu(body: string): var {
        const button = make("import QtQuick.Templates as T\nRButton { x: 20; y: 20; text: 'Menu'; property alias menu: menu; property var log: []
            RPopupMenu { id: menu; onItemTriggered: (index, item) => parent.log.push(index + ' ' + (item.text ?? item)); " + body + " } }")
        button.forceActiveFocus()
        return button
    }
    function openedMenu(button: Item): var {
        button.menu.popupAt(button)
        tryVerify(() => button.menu.opened)
        return button.menu
    }

    function test_rows() {
        const menu = openedMenu(makeMenu("model: " + root.entries))
        compare(menu.count, 5)
        compare([0, 1, 2, 3, 4].map(i => menu.itemAt(i).height), [32, 9, 32, 32, 32])
        compare(menu.height, 137)
        verify(menu.width >= 144)
        const row = menu.itemAt(0).contentItem
        compare([row.shortcutText, menu.plainText(menu.itemAt(0).text)], ["Ctrl+C", "Copy"])
        verify(menu.itemAt(3).checked)
    }

    /*! Keys after the menu was opened by one, and what it says. */
    function test_keys_data() {
        return [
            { tag: "first", keys: [Qt.Key_Return], log: ["0 &Copy"] },
            { tag: "over a line and what is off", keys: [Qt.Key_Down, Qt.Key_Space], log: ["3 Mute"] },
            { tag: "sub-menu", keys: [Qt.Key_Down, Qt.Key_Down, Qt.Key_Right, Qt.Key_Return], log: ["0 Inner"] },
            { tag: "Esc", keys: [Qt.Key_Escape], log: [] }
        ]
    }
    function test_keys(row) {
        const button = makeMenu("model: " + root.entries)
        const menu = openedMenu(button)
        for (const key of row.keys) {
            keyClick(key)
            wait(0)
        }
        tryVerify(() => !menu.visible)
        compare(button.log, row.log)
        verify(button.activeFocus, "the focus comes back")
    }

    function test_declaredEntries() {
        const button = makeMenu(`model: ['From the model']
            T.Action { text: 'Save'; icon.name: 'save'; shortcut: 'Ctrl+S'; onTriggered: menu.parent.log.push('saved') }
            T.MenuSeparator {}
            T.MenuItem { text: 'Load' }
            T.Menu { title: 'Bank'; T.MenuItem { text: 'A' } }`)
        const menu = openedMenu(button)
        compare(menu.count, 5)
        verify(menu.hasIcons)
        compare([0, 1, 2, 3, 4].map(i => menu.itemAt(i).height), [32, 32, 9, 32, 32])
        compare(menu.itemAt(1).contentItem.shortcutText, "Ctrl+S")
        mouseClick(menu.itemAt(1))
        compare(button.log, ["saved"], "entries that are not of the model tell it themselves")
    }

    function test_place_data() {
        return [
            { tag: "room", x: 50, y: 60, place: [51, 61] },
            { tag: "right", x: 380, y: 60, place: [235, 61] },
            { tag: "bottom", x: 50, y: 290, place: [51, 257] },
            { tag: "not a number", x: NaN, y: 60, place: [8, 260] }
        ]
    }
    function test_place(row) {
        const menu = makeMenu("model: ['A']").menu
        menu.popupAt(root, Qt.point(row.x, row.y))
        const place = menu.contentItem.mapToItem(root, 0, 0)
        compare([place.x, place.y, menu.contextItem], [...row.place, root])
    }

    function test_dropDown_data() {
        return [
            { tag: "room", y: 20, top: 52 },
            { tag: "no room below", y: 250, top: 250 - 64 },
            { tag: "room again", y: 20, top: 52 }
        ]
    }
    function test_dropDown(row) {
        const button = make("RButton { property alias menu: menu; RMenu { id: menu; model: ['A', 'B'] } }")
        button.y = row.y
        button.menu.open()
        compare(button.menu.contentItem.mapToItem(root, 0, 0).y, row.top)
    }

    function test_selectedEntry() {
        const menu = openedMenu(makeMenu("currentIndexSelected: 1; model: ['A', 'B']"))
        verify(menu.itemAt(1).contentItem.selected)
        menu.model = ["A", "B", "C"]
        verify(menu.itemAt(1).contentItem.selected)
        menu.currentIndexSelected = 99
        verify(!menu.itemAt(1).contentItem.selected)
    }

    function test_checkMarksAreThoseOfTheModel() {
        const button = makeMenu("model: [{ text: 'Mute', checkable: true }]")
        openedMenu(button)
        keyClick(Qt.Key_Return)
        tryVerify(() => !button.menu.visible)
        verify(!openedMenu(button).itemAt(0).checked, "the device has not said so")
    }

    function test_nothingToShow_data() {
        return [
            { tag: "empty", model: [] },
            { tag: "null", model: null },
            { tag: "number", model: 1e9 }
        ]
    }
    function test_nothingToShow(row) {
        const button = makeMenu("")
        button.menu.model = row.model
        button.menu.popupAt(button)
        button.menu.open()
        verify(!button.menu.visible)
        button.menu.popupAt(null)
        verify(button.activeFocus)
    }

    function test_oddEntries() {
        const menu = openedMenu(makeMenu("model: [null, 5, { text: 'R & D', colour: 'red', separator: true }, undefined, [], { items: [null] }]"))
        compare(menu.count, 6)
        compare(menu.plainText(menu.itemAt(2).text), "R & D")
    }

    function test_oddDelegates_data() {
        return [
            { tag: "none", delegate: "null", count: 0 },
            { tag: "no entry", delegate: "Component { Item {} }", count: 2 },
            { tag: "one of its own look", delegate: "Component { T.MenuItem { contentItem: RText {} } }", count: 2 }
        ]
    }
    function test_oddDelegates(row) {
        const menu = makeMenu("model: ['A', { text: 'B', items: ['C'] }]; delegate: " + row.delegate).menu
        menu.popupAt(root)
        compare(menu.count, row.count)
    }

    function test_many() {
        const button = makeMenu("model: Array.from({ length: 200 }, (_, i) => 'Entry ' + i)")
        const menu = openedMenu(button)
        compare(menu.height, root.height - 16)
        keyClick(Qt.Key_Up)
        for (let i = 0; i < 150; ++i)
            keyClick(Qt.Key_Down)
        const row = menu.itemAt(menu.currentIndex)
        compare(menu.currentIndex, 150)
        tryVerify(() => {
            const top = row.mapToItem(menu.contentItem, 0, 0).y
            return top >= 0 && top <= menu.height - row.height
        })
        keyClick(Qt.Key_Return)
        compare(button.log, ["150 Entry 150"])
    }

    /*! What a page does when an entry was chosen. */
    function test_handlers_data() {
        return [
            { tag: "another model", action: button => button.menu.model = ["B"] },
            { tag: "no model", action: button => button.menu.model = [] },
            { tag: "menu destroyed", action: button => button.menu.destroy() },
            { tag: "parent destroyed", action: button => button.destroy() },
            { tag: "opened again", action: button => button.menu.popupAt(button) },
            { tag: "focus elsewhere", action: () => root.forceActiveFocus() }
        ]
    }
    function test_handlers(row) {
        for (const open of [menu => keyClick(Qt.Key_Return), menu => mouseClick(menu.itemAt(0))]) {
            const button = makeMenu("model: [{ text: 'A', items: ['In'] }, 'B'].slice(1)")
            const menu = openedMenu(button)
            menu.itemTriggered.connect(() => row.action(button))
            open(menu)
            wait(20)
        }
    }

    function test_highlightStaysAtItsRow_data() {
        return [
            { tag: "a check mark", model: [{ text: "A", checkable: true }, "B"], log: ["1 B"] },
            { tag: "a row above it", model: ["New", "A", "B"], log: ["2 B"] },
            { tag: "gone", model: ["A", "C"], log: [] }
        ]
    }
    function test_highlightStaysAtItsRow(row) {
        const button = makeMenu("model: ['A', 'B']")
        openedMenu(button)
        keyClick(Qt.Key_Down)
        compare(button.menu.currentIndex, 1)
        button.menu.model = row.model
        if (row.log.length > 0)
            keyClick(Qt.Key_Return)
        compare([button.log, button.menu.visible], [row.log, row.log.length === 0])
    }
    function test_modelChangesWhileOpen() {
        const menu = openedMenu(makeMenu("model: [{ text: 'A', items: ['In'] }]"))
        keyClick(Qt.Key_Right)
        wait(0)
        menu.model = ["B", "C"]
        wait(20)
        compare([menu.count, menu.height], [2, 64])
    }

    function test_mirrored() {
        const button = makeMenu("model: [{ text: 'A', iconKey: 'copy', items: ['In'] }]")
        button.x = 200
        button.LayoutMirroring.enabled = true
        const menu = openedMenu(button)
        verify(menu.mirrored)
        keyClick(Qt.Key_Left)
        const inner = menu.itemAt(0).subMenu
        tryVerify(() => inner.opened)
        verify(inner.contentItem.mapToItem(menu.contentItem, 0, 0).x < 0, "the sub-menu is at the left")
    }
}
