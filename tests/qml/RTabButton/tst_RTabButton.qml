import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RTabButton"

    readonly property var kinds: ["RTabButton { text: 'Inputs'", "RTabButtonIcon { label: 'Inputs'; iconKey: 'mute'",
        "RTabButtonIconLabelH { text: 'Inputs'; iconKey: 'mute'", "RTabButtonIconLabelV { text: 'Inputs'; iconKey: 'mute'"]

    function test_sizes() {
        const sizes = root.kinds.map(kind => make(kind + " }")).map(tab => [tab.implicitWidth, tab.implicitHeight])
        compare(sizes, [[144, 32], [48, 32], [144, 32], [144, 64]])
    }

    function test_lineEdge_data() {
        return [
            { tag: "dark", edge: Qt.TopEdge },
            { tag: "light", edge: Qt.BottomEdge },
            { tag: "contrast-dark", edge: Qt.BottomEdge }
        ]
    }
    function test_lineEdge(row) {
        root.sheet = row.tag
        const tab = make("RTabButton { text: 'Inputs' }")
        verify(!tab.background.lineVisible)
        tab.selected = true
        verify(tab.background.lineVisible)
        compare(tab.background.line.y, row.edge === Qt.TopEdge ? 0 : 28)
        tab.consistent = false
        verify(!tab.background.lineVisible, "what devices do not agree on is not shown as chosen")
    }

    function test_pagesColors() {
        const tab = make("RTabButton { ssBorderVisible: true; ssBorderColor: 'red'; ssLineAtTop: false; selected: true }")
        compare([tab.background.border.width, tab.background.border.color], [1, Qt.color("red")])
        compare(tab.background.lineEdge, Qt.BottomEdge)
    }

    function test_clicks() {
        for (const kind of root.kinds) {
            const tab = make(kind + "; closable: true; selectable: true }")
            const log = logged(tab, { selectionEdited: "edited", clicked: "clicked", closeRequested: "close" })
            tryVerify(() => tab.endSpace > 32)
            mouseClick(tab, 5, 5)
            mouseClick(tab, tab.width - 16, 16)
            tab.forceActiveFocus()
            keyClick(Qt.Key_Delete)
            tab.closable = false
            keyClick(Qt.Key_Delete)
            keyClick(Qt.Key_Return)
            compare(log, ["edited true", "clicked", "close", "close", "edited false", "clicked"])
        }
    }

    function test_closedInTheHandler() {
        const row = make("Row { Repeater { model: ListModel { id: tabs; ListElement { name: 'a' } ListElement { name: 'b' } }
            RTabButton { required property int index; text: index; closable: true; onCloseRequested: tabs.remove(index) } } }")
        row.children[0].forceActiveFocus()
        keyClick(Qt.Key_Delete)
        compare(row.Window.activeFocusItem?.text, "0", "the focus stays in the row")
        tryCompare(row, "width", 144)
        mouseClick(row, 130, 16)
        tryVerify(() => row.children.length === 1, 1000, "the repeater alone is left")
    }

    /*! The keys pressed one after the other, and where the focus is then; the row is between two buttons. */
    function test_keys_data() {
        return [
            { tag: "to the selected one", keys: [Qt.Key_Tab], at: "c" },
            { tag: "over it", keys: [Qt.Key_Tab, Qt.Key_Tab], at: "after" },
            { tag: "Left passes what is off", keys: [Qt.Key_Tab, Qt.Key_Left], at: "a" },
            { tag: "no further than the end", keys: [Qt.Key_Tab, Qt.Key_Right, Qt.Key_Right], at: "d" },
            { tag: "Home", keys: [Qt.Key_Tab, Qt.Key_Home], at: "a" },
            { tag: "End", keys: [Qt.Key_Tab, Qt.Key_End], at: "d" },
            { tag: "leaves from the middle", keys: [Qt.Key_Tab, Qt.Key_Home, Qt.Key_Tab], at: "after" },
            { tag: "and back in", keys: [Qt.Key_Tab, Qt.Key_Tab, Qt.Key_Backtab], at: "c" },
            { tag: "mirrored", mirrored: true, keys: [Qt.Key_Tab, Qt.Key_Left], at: "d" },
            { tag: "mirrored Home", mirrored: true, keys: [Qt.Key_Tab, Qt.Key_Home], at: "a" }
        ]
    }
    function test_keys(row) {
        const page = make("Column { RButton { text: 'before' } Row { LayoutMirroring.enabled: " + (row.mirrored ?? false) + "
            LayoutMirroring.childrenInherit: true
            RTabButton { width: 50; text: 'a' } RTabButton { width: 50; text: 'b'; enabled: false }
            RTabButton { width: 50; text: 'c'; selected: true } RTabButton { width: 50; text: 'd' } }
            RButton { text: 'after' } }")
        page.children[0].forceActiveFocus()
        for (const key of row.keys) {
            keyClick(key)
            wait(0)
        }
        compare(page.Window.activeFocusItem.text, row.at)
    }

    function test_marksLeaveRoomForTheText() {
        for (const kind of root.kinds) {
            const tab = make(kind + "; width: 140; closable: true; modified: true; badge: '12345678901234567890' }")
            tryVerify(() => tab.endSpace > 60)
            const badge = tab.contentItem.width
            tab.badge = ""
            tryVerify(() => badge > 0 && tab.contentItem.width > badge && tab.contentItem.width <= 140 - 32)
        }
    }
}
