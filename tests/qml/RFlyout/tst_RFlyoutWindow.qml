import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

/*! Flyouts on a page of 400 by 300 pixels. */
ThemedTestCase {
    id: root
    name: "RFlyoutWindow"

    /*! A page with flyouts, the first of which is \c flyout, in a page of the test's size. */
    function makePage(body: string): var {
        return make("RScreen { id: page; property var log: []; RButton { id: opener; objectName: 'opener'; x: 10; y: 10; width: 80; text: 'EQ' } " + body + " }")
    }
    function makeFlyout(properties: string): var {
        const page = makePage("RFlyoutWindow { objectName: 'flyout'; title: 'EQ'; " + properties + " Item { implicitWidth: 180; implicitHeight: 68 } }")
        return findChild(page, "flyout")
    }
    function opened(properties: string): var {
        const flyout = makeFlyout(properties)
        flyout.open()
        return flyout
    }
    function placeOf(flyout: Item): var {
        return [flyout.x, flyout.y]
    }
    function dragFrom(flyout: Item, x: real, y: real, dx: real, dy: real) {
        const from = flyout.mapToItem(root, x, y)
        mousePress(root, from.x, from.y)
        mouseMove(root, from.x + dx / 2, from.y + dy / 2)
        mouseMove(root, from.x + dx, from.y + dy)
    }
    function drag(flyout: Item, dx: real, dy: real) {
        const from = flyout.mapToItem(root, 60, 16)
        dragFrom(flyout, 60, 16, dx, dy)
        mouseRelease(root, from.x + dx, from.y + dy)
    }

    function test_openAndClose() {
        const flyout = makeFlyout("")
        const page = flyout.parent
        const opener = findChild(root, "opener")
        const log = logged(flyout, { flyoutOpened: "opened", flyoutClosed: "closed" })
        verify(!flyout.visible && !flyout.shown)
        opener.forceActiveFocus()
        flyout.open()
        verify(flyout.visible && flyout.shown && flyout.activeFocus)
        compare([flyout.width, flyout.height, ...placeOf(flyout)], [180, 100, 110, 100])
        compare(flyout.RStyleSet.name, "flyoutFocus")
        flyout.open()
        keyClick(Qt.Key_Escape)
        verify(!flyout.visible && !flyout.shown && opener.activeFocus)
        flyout.close()
        compare(log, ["opened", "closed"])
    }

    function test_placesToOpenAt_data() {
        return [
            { tag: "right", edge: Qt.RightEdge, place: [90, 10] },
            { tag: "below", edge: Qt.BottomEdge, place: [10, 42] },
            { tag: "no room at the left", edge: Qt.LeftEdge, place: [90, 10] },
            { tag: "no room above", edge: Qt.TopEdge, place: [10, 42] }
        ]
    }
    function test_placesToOpenAt(row) {
        const flyout = makeFlyout("")
        flyout.openAt(findChild(root, "opener"), row.edge)
        compare(placeOf(flyout), row.place)
        flyout.openAt(null, row.edge)
        compare(placeOf(flyout), [110, 100])
    }

    /*! Drags of a flyout in the middle, at 110, 100. */
    function test_drag_data() {
        return [
            { tag: "free", by: [30, 20], place: [140, 120] },
            { tag: "snaps to a corner", by: [-105, -95], place: [0, 0] },
            { tag: "does not snap", by: [-105, -95], properties: "snapToEdges: false;", place: [5, 5] },
            { tag: "out at the right", by: [900, 20], place: [336, 120] },
            { tag: "out at the bottom", by: [30, 900], place: [140, 268] },
            { tag: "out at the top", by: [30, -900], place: [140, 0] },
            { tag: "not movable", by: [30, 20], properties: "movable: false;", place: [110, 100] },
            { tag: "a tremor", by: [2, 2], place: [110, 100] }
        ]
    }
    function test_drag(row) {
        const flyout = opened(row.properties ?? "")
        const spy = spyOn(flyout, "movedByUser")
        drag(flyout, ...row.by)
        compare(placeOf(flyout), row.place)
        compare(spy.count, row.place[0] === 110 ? 0 : 1)
    }

    function test_escEndsADrag_data() {
        return [
            { tag: "move", x: 60, y: 16, properties: "" },
            { tag: "resize", x: 175, y: 95, properties: "resizable: true;" }
        ]
    }
    function test_escEndsADrag(row) {
        const flyout = opened(row.properties)
        dragFrom(flyout, row.x, row.y, 40, 30)
        verify(flyout.x > 110 || flyout.width > 180)
        keyClick(Qt.Key_Escape)
        compare([...placeOf(flyout), flyout.width, flyout.height, flyout.shown], [110, 100, 180, 100, true])
        mouseRelease(root)
    }

    function test_resize() {
        const flyout = opened("resizable: true;")
        const log = logged(flyout, { resizedByUser: "resized" })
        dragFrom(flyout, 175, 95, 40, 30)
        mouseRelease(root)
        compare([flyout.width, flyout.height, log.length], [220, 130, 1])
        dragFrom(flyout, 215, 125, -500, -500)
        mouseRelease(root)
        compare([flyout.width, flyout.height], [160, 80])
        flyout.collapsed = true
        compare(flyout.height, 32)
        flyout.collapsed = false
        compare(flyout.height, 80)
    }

    function test_docks() {
        const page = makePage("RFlyoutWindow { objectName: 'flyout'; Item { implicitWidth: 180; implicitHeight: 68 } }")
        const flyout = findChild(page, "flyout")
        flyout.open()
        drag(flyout, 107, 96)
        compare(placeOf(flyout), [220, 200])
        page.width = 500
        page.height = 200
        compare(placeOf(flyout), [320, 100])
        flyout.collapsed = true
        compare(placeOf(flyout), [320, 168])
        page.width = 100
        page.height = 20
        compare(placeOf(flyout), [0, 0])
        page.width = 500
        page.height = 300
        flyout.collapsed = false
        compare(placeOf(flyout), [320, 200])
    }

    function test_keys_data() {
        return [
            { tag: "right", key: Qt.Key_Right, modifiers: Qt.ControlModifier, place: [118, 100] },
            { tag: "up, fine", key: Qt.Key_Up, modifiers: Qt.ControlModifier | Qt.ShiftModifier, place: [110, 99] },
            { tag: "arrow alone", key: Qt.Key_Right, modifiers: Qt.NoModifier, place: [110, 100] }
        ]
    }
    function test_keys(row) {
        const flyout = opened("")
        keyClick(row.key, row.modifiers)
        compare(placeOf(flyout), row.place)
    }

    function test_remembersItsPlace() {
        const flyout = opened("rememberKey: 'eq'; resizable: true;")
        drag(flyout, 30, 20)
        flyout.close()
        const other = opened("rememberKey: 'eq';")
        compare(placeOf(other), [140, 120])
        other.openAt(findChild(root, "opener"), Qt.RightEdge)
        compare(placeOf(other), [140, 120])
        compare(placeOf(opened("rememberKey: 'gate';")), [110, 100])
    }

    function test_doubleClickCollapses() {
        const flyout = opened("")
        mouseDoubleClickSequence(flyout, 60, 16)
        compare([flyout.collapsed, flyout.height], [true, 32])
        mouseDoubleClickSequence(flyout, 60, 16)
        compare([flyout.collapsed, flyout.height], [false, 100])
    }

    function test_keysCollapse() {
        const flyout = opened("")
        keyClick(Qt.Key_Up, Qt.AltModifier)
        compare([flyout.collapsed, flyout.height, flyout.activeFocus], [true, 32, true])
        keyClick(Qt.Key_Down, Qt.AltModifier)
        compare([flyout.collapsed, flyout.height], [false, 100])
    }

    /*! What the page binds counts again as soon as it changes. */
    function test_bindingsOfThePageStay_data() {
        return [
            { tag: "drag", x: 60, y: 16 },
            { tag: "resize", x: 195, y: 115 },
            { tag: "resize and Esc", x: 195, y: 115, key: Qt.Key_Escape },
            { tag: "drag and Esc", x: 60, y: 16, key: Qt.Key_Escape }
        ]
    }
    function test_bindingsOfThePageStay(row) {
        const page = makePage("property real bound: 0; RFlyoutWindow { objectName: 'flyout'; title: 'EQ'; resizable: true; x: page.bound; y: page.bound; width: 200 + page.bound; height: 120 + page.bound }")
        const flyout = findChild(page, "flyout")
        flyout.open()
        dragFrom(flyout, row.x, row.y, 40, 30)
        if (row.key)
            keyClick(row.key)
        mouseRelease(root)
        page.bound = 20
        compare([...placeOf(flyout), flyout.width, flyout.height], [20, 20, 220, 140])
    }

    function test_groups() {
        const page = makePage("RFlyoutWindow { objectName: 'a'; group: 'g' } RFlyoutWindow { objectName: 'b'; group: 'g' } RFlyoutWindow { objectName: 'c' }")
        const [a, b, c] = ["a", "b", "c"].map(name => findChild(page, name))
        for (const flyout of [a, c, b])
            flyout.open()
        compare([a.shown, b.shown, c.shown], [false, true, true])
        b.pinned = true
        a.open()
        verify(a.shown && b.shown)
    }

    function test_focusGoesRound() {
        const page = makePage("RFlyoutWindow { objectName: 'a' } RFlyoutWindow { objectName: 'b'; RButton { objectName: 'inner' } }")
        const [a, b, inner, opener] = ["a", "b", "inner", "opener"].map(name => findChild(page, name))
        opener.forceActiveFocus()
        keyClick(Qt.Key_F6, Qt.ControlModifier)
        verify(opener.activeFocus, "no flyout")
        a.open()
        b.open()
        inner.forceActiveFocus()
        keyClick(Qt.Key_F6, Qt.ControlModifier)
        verify(a.activeFocus)
        compare(a.parent.children[a.parent.children.length - 1], a)
        keyClick(Qt.Key_F6, Qt.ControlModifier)
        verify(inner.activeFocus)
        opener.forceActiveFocus()
        keyClick(Qt.Key_F6, Qt.ControlModifier)
        verify(a.activeFocus)
        mouseClick(b, 155, 75)
        verify(b.activeFocus)
        compare(b.parent.children[b.parent.children.length - 1], b)
    }

    function test_contentIsMadeWhenOpened() {
        const flyout = makeFlyout("property int made: 0; contentComponent: Component { Item { implicitWidth: 250; implicitHeight: 90; Component.onCompleted: flyout.made += 1 } } id: flyout;")
        compare(flyout.made, 0)
        flyout.open()
        flyout.close()
        flyout.open()
        compare(flyout.made, 1)
    }

    /*! A layer of 400 by 300 is too small for it. */
    function test_scrolls_data() {
        return [
            { tag: "by itself", properties: "", size: [400, 300] },
            { tag: "size of the page", properties: "width: 500; height: 700;", size: [500, 700] }
        ]
    }
    function test_scrolls(row) {
        const page = makePage("RFlyoutWindow { objectName: 'flyout'; " + row.properties + " Item { implicitWidth: 900; implicitHeight: 900 } }")
        const flyout = findChild(page, "flyout")
        flyout.open()
        compare([flyout.width, flyout.height], row.size)
        const view = flyout.contentItem
        verify(view.interactive && view.y + view.height <= 300 && view.contentHeight >= 900)
    }

    function test_focusComesIntoView() {
        const page = makePage("RFlyoutWindow { objectName: 'flyout'; Column { Repeater { model: 20; RButton { objectName: 'button' + index } } } }")
        const flyout = findChild(page, "flyout")
        flyout.open()
        keyClick(Qt.Key_Tab)
        verify(findChild(page, "button0").activeFocus, "not the page's first")
        keyClick(Qt.Key_Backtab)
        verify(findChild(page, "opener").activeFocus)
        const last = findChild(page, "button19")
        last.forceActiveFocus(Qt.TabFocusReason)
        const bottom = last.mapToItem(flyout.contentItem, 0, last.height).y
        verify(bottom <= flyout.contentItem.height && bottom > flyout.contentItem.height - 40)
        last.focus = false
        verify(flyout.contentItem.contentY > 0, "it stays where it is")
    }

    /*! What a page does while a flyout is open, and dragged. */
    function test_goneWhileOpen_data() {
        return [
            { tag: "flyout", act: (page, flyout) => flyout.destroy() },
            { tag: "opener", act: page => findChild(page, "opener").destroy() },
            { tag: "page", act: page => page.destroy() },
            { tag: "layer", act: (page, flyout) => flyout.parent = null },
            { tag: "hidden", act: (page, flyout) => flyout.visible = false },
            { tag: "paused", act: page => page.active = false },
            { tag: "closed", act: (page, flyout) => flyout.close() }
        ]
    }
    function test_goneWhileOpen(row) {
        const page = makePage("RFlyoutWindow { objectName: 'flyout'; resizable: true }")
        const flyout = findChild(page, "flyout")
        const opener = findChild(page, "opener")
        opener.forceActiveFocus()
        flyout.openAt(opener, Qt.RightEdge)
        dragFrom(flyout, 60, 16, 40, 30)
        row.act(page, flyout)
        wait(20)
        mouseMove(root, 200, 200)
        mouseRelease(root, 200, 200)
        keyClick(Qt.Key_Escape)
    }

    function test_focusComesBackFromWhatIsDestroyed() {
        const flyout = makeFlyout("")
        const opener = findChild(root, "opener")
        opener.forceActiveFocus()
        flyout.open()
        flyout.destroy()
        tryVerify(() => opener.activeFocus)
    }

    function test_handlers_data() {
        return [
            { tag: "closed when opened", signal: "flyoutOpened", act: flyout => flyout.close() },
            { tag: "opened when closed", signal: "flyoutClosed", act: flyout => flyout.open() },
            { tag: "destroyed when opened", signal: "flyoutOpened", act: flyout => flyout.destroy() },
            { tag: "destroyed when closed", signal: "flyoutClosed", act: flyout => flyout.destroy() }
        ]
    }
    function test_handlers(row) {
        const flyout = makeFlyout("group: 'g';")
        const page = flyout.parent
        flyout[row.signal].connect(() => row.act(flyout))
        flyout.open()
        wait(0)
        findChild(page, "flyout")?.close()
        wait(0)
    }

    function test_oddPlaces() {
        const flyout = opened("x: 1e9; y: -1e9;")
        compare(placeOf(flyout), [220, 0])
        flyout.x = 20
        compare(placeOf(flyout), [20, 0])
    }

    function test_headerButtons() {
        const flyout = opened("group: 'g'; closable: false;")
        mouseClick(flyout, 180 - 16, 16)
        verify(flyout.pinned)
        keyClick(Qt.Key_Escape)
        verify(flyout.shown)
        flyout.closable = true
        mouseClick(flyout, 180 - 16, 16)
        verify(!flyout.shown)
    }
}
