import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RFlyoutToolbar"

    function makeBar(properties: string): var {
        return make(`RFlyoutToolbar { ${properties}
            RFlyoutToolbarItem { label: 'Pointer'; iconKey: 'pointer'; selectable: true; selected: true }
            RFlyoutToolbarItem { label: 'Off'; enabled: false }
            RFlyoutToolbarItem { label: 'Hand'; iconKey: 'hand'; selectable: true }
            RFlyoutToolbarItem { label: 'Zoom'; iconKey: 'zoom-in'; selectable: true } }`)
    }

    function test_sizes() {
        const bar = makeBar("")
        compare([bar.width, bar.height], [48, 8 + 4 * 40 + 3])
        bar.orientation = Qt.Horizontal
        tryCompare(bar, "width", 8 + 4 * 40 + 3)
        compare([bar.height, bar.items[0].inRow], [48, true])
        bar.movable = true
        tryCompare(bar, "width", 16 + 8 + 4 * 40 + 3)
    }

    function test_keys_data() {
        return [
            { tag: "down", properties: "", keys: [Qt.Key_Down], focus: 2 },
            { tag: "end, further", properties: "", keys: [Qt.Key_End, Qt.Key_Down], focus: 3 },
            { tag: "home", properties: "", keys: [Qt.Key_End, Qt.Key_Home], focus: 0 },
            { tag: "right in a column", properties: "", keys: [Qt.Key_Right], focus: 0 },
            { tag: "right in a row", properties: "orientation: Qt.Horizontal", keys: [Qt.Key_Right], focus: 2 },
            { tag: "left in a mirrored row", properties: "orientation: Qt.Horizontal; LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true", keys: [Qt.Key_Left], focus: 2 }
        ]
    }
    function test_keys(row) {
        const bar = makeBar(row.properties)
        wait(20)
        bar.items[0].forceActiveFocus()
        for (const key of row.keys)
            keyClick(key)
        verify(bar.items[row.focus].activeFocus)
    }

    function test_oneTabStop() {
        const page = make("Row { RButton { text: 'A' } RFlyoutToolbar { RFlyoutToolbarItem { label: 'B' } RFlyoutToolbarItem { label: 'C' } } RButton { text: 'D' } }")
        page.children[0].forceActiveFocus()
        keyClick(Qt.Key_Tab)
        verify(page.children[1].items[0].activeFocus)
        keyClick(Qt.Key_Tab)
        verify(page.children[2].activeFocus)
    }

    function test_exclusive() {
        const bar = makeBar("exclusive: true")
        const selection = () => [0, 2, 3].filter(i => bar.items[i].selected)
        mouseClick(bar.items[3])
        compare(selection(), [3])
        mouseClick(bar.items[3])
        compare(selection(), [3], "one stays selected")
        bar.exclusive = false
        mouseClick(bar.items[0])
        compare(selection(), [0, 3])
    }

    function test_flyout() {
        const page = make("RScreen { RFlyoutToolbar { x: 10; y: 20; RFlyoutToolbarItem { id: tool; objectName: 'tool'; label: 'EQ'; flyout: window } } RFlyoutWindow { id: window; objectName: 'window' } }")
        const tool = findChild(page, "tool")
        const flyout = findChild(page, "window")
        mouseClick(tool)
        compare([flyout.shown, flyout.x, flyout.y], [true, 54, 24])
        mouseClick(tool)
        verify(!flyout.shown && tool.activeFocus)
    }

    function test_popup() {
        const bar = make("RFlyoutToolbar { x: 300; y: 20; RFlyoutToolbarItem { id: tool; label: 'More'; flyout: menu; property alias menu: menu; RMenu { id: menu; model: ['A'] } } }")
        const tool = bar.items[0]
        mouseClick(tool)
        tryVerify(() => tool.menu.opened)
        compare(tool.menu.contentItem.mapToItem(root, 0, 0).x, 304 - 144)
        mouseClick(tool)
        tryVerify(() => !tool.menu.visible)
    }

    function test_oddFlyouts() {
        const tool = make("RFlyoutToolbarItem { label: 'EQ'; flyout: QtObject {} }")
        mouseClick(tool)
        tool.flyout = null
        mouseClick(tool)
    }
}
