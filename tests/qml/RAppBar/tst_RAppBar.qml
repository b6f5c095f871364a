import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RAppBar"

    /*! A bar of 800 pixels with a button before and two after its pages "a", "b", "c" (of 96 pixels), which have icons,
        and two sub-pages. */
    function makeBar(more: var, pageMore: var): var {
        const page = name => `RAppBarNavButton { objectName: '${name}'; text: '${name}'; iconKey: 'mixer'; ${pageMore ?? ""} }`
        const bar = make(`RAppBar {
            width: 800
            leading: RAppBarButton { objectName: 'menu'; label: 'menu'; iconKey: 'menu' }
            ${page("a")} ${page("b")} ${page("c")}
            trailing: [RAppBarStateButton { objectName: 'online'; text: 'ONLINE' },
                       RAppBarStateButton { objectName: 'mute'; text: 'MUTE' }]
            subNavigation: [RAppBarSubNavButton { objectName: 'd'; text: 'd' }, RAppBarSubNavButton { objectName: 'e'; text: 'e' }]
            ${more} }`)
        waitForRendering(bar)
        return bar
    }

    function leftOf(bar: Item, name: string): real {
        return findChild(bar, name).mapToItem(bar, 0, 0).x
    }

    function test_sizes_data() {
        return [
            { tag: "RAppBar {}", size: [0, 48] },
            { tag: "RAppBar { RAppBarNavButton {} trailing: RAppBarButton {} subNavigation: RAppBarSubNavButton {} }", size: [144, 80] },
            { tag: "RAppBarButton {}", size: [48, 48] },
            { tag: "RAppBarStateButton { text: 'ONLINE' }", size: [96, 48] },
            { tag: "RAppBarNavButton { text: 'Mixer' }", size: [96, 48] },
            { tag: "RAppBarNavButton { text: 'Mixer'; iconOnly: true }", size: [96, 48] },
            { tag: "RAppBarNavButton { text: 'Mixer'; iconKey: 'mixer'; iconOnly: true }", size: [48, 48] },
            { tag: "RAppBarSubNavButton { text: 'Mixer' }", size: [120, 32] },
            { tag: "RAppBarNavButton { text: Array(200).join('long ') }", size: [240, 48] },
            { tag: "RAppBarStateButton { text: Array(200).join('long ') }", size: [240, 48] }
        ]
    }
    function test_sizes(row) {
        const item = make(row.tag)
        tryVerify(() => item.implicitWidth === row.size[0] && item.implicitHeight === row.size[1], 1000,
                  [item.implicitWidth, item.implicitHeight].join())
    }

    function test_sharesItsRoom() {
        const bar = makeBar("")
        verify(!bar.compact && bar.subNavVisible)
        compare([leftOf(bar, "a"), leftOf(bar, "c"), leftOf(bar, "online"), leftOf(bar, "mute")], [48, 242, 607, 704])
        bar.width = 500
        tryVerify(() => bar.compact)
        tryCompare(findChild(bar, "c"), "width", 48)
        compare(leftOf(bar, "c"), 146)
        findChild(bar, "c").iconKey = ""
        tryCompare(findChild(bar, "c"), "width", 96)
        bar.width = 800
        tryVerify(() => !bar.compact)
        for (const sub of ["d", "e"])
            findChild(bar, sub).visible = false
        tryCompare(bar, "implicitHeight", 48)
        findChild(bar, "e").visible = true
        tryCompare(bar, "implicitHeight", 80)
    }

    function test_mirrored() {
        const bar = makeBar("LayoutMirroring.enabled: true")
        compare([leftOf(bar, "menu"), leftOf(bar, "a"), leftOf(bar, "mute"), leftOf(bar, "d")], [752, 656, 0, 680])
    }

    /*! Sums of broken units are not exact; the room that a text gets is still enough for it. */
    function test_textsAreWholeAtAnySize() {
        const button = word => `RAppBarNavButton { objectName: '${word}'; text: '${word}'; iconKey: 'eq' }`
        const bar = make(`RAppBar { width: 2000; ${button("Devices")} ${button("Amplifier")} ${button("Sections")} }`)
        for (let tenths = 5; tenths <= 30; ++tenths) {
            theme.setDpZoomFactor(tenths / 10)
            waitForRendering(bar)
            for (const word of ["Devices", "Amplifier", "Sections"])
                verify(!findChild(bar, word).textControl.truncated, `${word} at ${tenths / 10}`)
        }
        theme.setDpZoomFactor(0)
    }

    function test_textsThatChange() {
        const bar = makeBar("")
        bar.width = 550
        tryVerify(() => !bar.compact)
        findChild(bar, "b").text = "a much longer text of a page"
        tryVerify(() => bar.compact)
        findChild(bar, "b").text = "b"
        tryVerify(() => !bar.compact)
        findChild(bar, "b").visible = false
        bar.width = 450
        waitForRendering(bar)
        tryVerify(() => !bar.compact, 1000, "what is hidden takes no room")
    }

    /*! Whatever the room, the focus makes each button seen, wholly. */
    function test_everythingIsReachable_data() {
        return [
            { tag: "wide", width: 800 },
            { tag: "navigation flicks", width: 400 },
            { tag: "all flicks", width: 200 },
            { tag: "mirrored", width: 200, more: "LayoutMirroring.enabled: true" }
        ]
    }
    function test_everythingIsReachable(row) {
        const bar = makeBar(row.more ?? "")
        bar.width = row.width
        findChild(bar, "menu").forceActiveFocus()
        const seen = []
        for (let i = 0; i < 6; ++i) {
            waitForRendering(bar)
            wait(0)
            const button = bar.Window.activeFocusItem
            const left = leftOf(bar, button.objectName)
            verify(left >= 0 && left + button.width <= bar.width, button.objectName + " at " + left)
            seen.push(button.objectName)
            keyClick(row.more ? Qt.Key_Left : Qt.Key_Right)
        }
        compare(seen, ["menu", "a", "b", "c", "online", "mute"])
    }

    function test_chosenPagesAreSeen() {
        const bar = makeBar("", "width: 300")
        const page = findChild(bar, "c")
        verify(leftOf(bar, "c") >= 600)
        page.selected = true
        tryVerify(() => leftOf(bar, "c") + page.width <= leftOf(bar, "online"))
    }

    function test_fingerFlicks() {
        const bar = makeBar("", "width: 300")
        waitForRendering(bar)
        const before = leftOf(bar, "a")
        const clicked = spyOn(findChild(bar, "a"), "clicked")
        touchEvent(bar).press(0, bar, 140, 24).commit()
        // Moves of a finger are delivered with the next frame.
        for (let x = 130; x > 60; x -= 10) {
            touchEvent(bar).move(0, bar, x, 24).commit()
            wait(20)
        }
        touchEvent(bar).release(0, bar, 60, 24).commit()
        tryVerify(() => leftOf(bar, "a") < before)
        compare(clicked.count, 0)
    }

    function test_wheelAndArrows() {
        const arrows = item => item.autoRepeat === true ? 1 : Array.from(item.children).reduce((sum, child) => sum + arrows(child), 0)
        compare(arrows(makeBar("")), 0, "where there is room")
        const bar = makeBar("", "width: 300")
        compare(arrows(bar), 2)
        const before = leftOf(bar, "a")
        mouseWheel(bar, 200, 24, 0, -120)
        tryVerify(() => leftOf(bar, "a") < before)
        for (let i = 0; i < 4; ++i)
            mouseWheel(bar, 200, 24, 0, 120)
        tryVerify(() => leftOf(bar, "a") === before)
        mouseClick(bar, leftOf(bar, "online") - 10, 24)
        tryVerify(() => leftOf(bar, "a") < before)
    }

    /*! The keys pressed one after the other, and where the focus is then; the bar is between two buttons. */
    function test_keys_data() {
        return [
            { tag: "in at the chosen page", keys: [Qt.Key_Tab], at: "b" },
            { tag: "Left", keys: [Qt.Key_Tab, Qt.Key_Left, Qt.Key_Left], at: "menu" },
            { tag: "no further", keys: [Qt.Key_Tab, Qt.Key_Home, Qt.Key_Left], at: "menu" },
            { tag: "Right passes what is off", keys: [Qt.Key_Tab, Qt.Key_Right, Qt.Key_Right], at: "mute" },
            { tag: "End", keys: [Qt.Key_Tab, Qt.Key_End], at: "mute" },
            { tag: "Down", keys: [Qt.Key_Tab, Qt.Key_Down], at: "d" },
            { tag: "Down to the chosen one", chosen: "e", keys: [Qt.Key_Tab, Qt.Key_Down], at: "e" },
            { tag: "Up", keys: [Qt.Key_Tab, Qt.Key_Down, Qt.Key_Right, Qt.Key_Up], at: "b" },
            { tag: "second row", keys: [Qt.Key_Tab, Qt.Key_Home, Qt.Key_Tab], at: "d" },
            { tag: "out", keys: [Qt.Key_Tab, Qt.Key_Tab, Qt.Key_Tab], at: "after" },
            { tag: "and back", keys: [Qt.Key_Tab, Qt.Key_Tab, Qt.Key_Tab, Qt.Key_Backtab], at: "d" },
            { tag: "back over both", keys: [Qt.Key_Tab, Qt.Key_Tab, Qt.Key_Backtab, Qt.Key_Backtab], at: "before" },
            { tag: "mirrored", mirrored: true, keys: [Qt.Key_Tab, Qt.Key_Right, Qt.Key_Right], at: "menu" },
            { tag: "mirrored Home", mirrored: true, keys: [Qt.Key_Tab, Qt.Key_Home], at: "menu" }
        ]
    }
    function test_keys(row) {
        const page = make("Column { property alias bar: slot; RButton { objectName: 'before' } Item { id: slot; width: 800; height: 80 }
            RButton { objectName: 'after' } }")
        const bar = makeBar(`LayoutMirroring.enabled: ${row.mirrored ?? false}`)
        bar.parent = page.bar
        findChild(bar, "b").selected = true
        findChild(bar, "c").enabled = false
        findChild(bar, "online").enabled = row.tag !== "Right passes what is off"
        if (row.chosen)
            findChild(bar, row.chosen).selected = true
        waitForRendering(bar)
        page.children[0].forceActiveFocus()
        for (const key of row.keys) {
            keyClick(key)
            wait(0)
        }
        compare(page.Window.activeFocusItem.objectName, row.at)
    }

    function test_otherControlsAreStopsOfTheirOwn() {
        const bar = makeBar("Component.onCompleted: trailing.push(search); property var search: RTextField { objectName: 'search' }")
        bar.search.forceActiveFocus()
        keyClick(Qt.Key_Left)
        compare(bar.Window.activeFocusItem, bar.search)
        findChild(bar, "menu").forceActiveFocus()
        keyClick(Qt.Key_Tab)
        wait(0)
        compare(bar.Window.activeFocusItem, bar.search, "from the buttons to the field")
    }

    function test_focusStaysInTheRow() {
        const bar = make("RAppBar { id: bar; width: 800; property var subPages: ['x', 'y']
            leading: RAppBarButton { objectName: 'menu'; label: 'menu' } RAppBarNavButton { objectName: 'a'; text: 'a' }
            subNavigation: Repeater { model: bar.subPages
                RAppBarSubNavButton { required property string modelData; objectName: modelData; text: modelData } } }")
        waitForRendering(bar)
        findChild(bar, "y").forceActiveFocus()
        bar.subPages = ["p", "q"]
        tryVerify(() => bar.Window.activeFocusItem.objectName === "p", 1000, "in place of a button that has gone")
        bar.subPages = []
        tryVerify(() => bar.Window.activeFocusItem.objectName === "menu")
        findChild(bar, "menu").enabled = false
        tryVerify(() => bar.Window.activeFocusItem.objectName === "a")
        root.forceActiveFocus()
        bar.forceActiveFocus()
        tryVerify(() => bar.Window.activeFocusItem.objectName === "a")
    }

    function test_goesWhileFocused() {
        const bar = makeBar("")
        const button = findChild(bar, "b")
        button.forceActiveFocus()
        button.clicked.connect(() => bar.destroy())
        keyClick(Qt.Key_Return)
        wait(0)
        keyClick(Qt.Key_Right)
    }
}
