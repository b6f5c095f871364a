pragma ComponentBehavior: Bound

import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RWorkspaceBase"

    // Items a, b and c of 40 by 40 in a row, and d with the top left quarter of c under it.
    function makePage(properties: string): var {
        const grid = properties.includes("snapToGrid") ? "" : "snapToGrid: false;"
        const lines = properties.includes("snapToItems") ? "" : "snapToItems: false;"
        const page = make(`Item { id: page; width: 400; height: 300
            property alias workspace: workspace
            property alias a: a; property alias b: b; property alias c: c; property alias d: d
            RButton { objectName: 'before'; text: 'before' }
            RWorkspaceBase { id: workspace; anchors.fill: parent; ${grid} ${lines} ${properties}
                RWorkspaceItemBase { id: a; objectName: 'a'; position: Qt.point(40, 40); width: 40; height: 40 }
                RWorkspaceItemBase { id: b; objectName: 'b'; position: Qt.point(120, 40); width: 40; height: 40 }
                RWorkspaceItemBase { id: c; objectName: 'c'; position: Qt.point(200, 40); width: 40; height: 40 }
                RWorkspaceItemBase { id: d; objectName: 'd'; position: Qt.point(220, 60); width: 40; height: 40 } }
            RButton { objectName: 'after'; text: 'after'; y: 260 } }`)
        waitForRendering(page)
        return page
    }
    function names(items: var): string {
        return Array.from(items, item => item.objectName).join(" ")
    }
    function selected(page: var): string {
        return names(page.workspace.selection.items)
    }
    function place(item: var): var {
        return [item.position.x, item.position.y]
    }
    function drag(page: var, from: var, to: var, modifiers: int): void {
        beginDrag(page, from, to, modifiers)
        mouseRelease(page.workspace, ...to, Qt.LeftButton, modifiers)
    }
    function beginDrag(page: var, from: var, to: var, modifiers: int): void {
        mousePress(page.workspace, ...from, Qt.LeftButton, modifiers)
        mouseMove(page.workspace, (from[0] + to[0]) / 2, (from[1] + to[1]) / 2, 0, Qt.LeftButton)
        mouseMove(page.workspace, ...to, 0, Qt.LeftButton)
    }

    function test_whereItemsAre_data() {
        return [
            { tag: "unit", properties: "unit: 2", rect: [80, 80, 40, 40], at: [50, 50], name: "a" },
            { tag: "zoom", properties: "zoom: 2; viewX: 10; viewY: 10", rect: [60, 60, 80, 80], at: [50, 50], name: "a" },
            { tag: "both", properties: "unit: 2; zoom: 0.5; viewX: 10; viewY: 10", rect: [30, 30, 20, 20], at: [50, 50], name: "a" },
            { tag: "in front", properties: "", rect: [40, 40, 40, 40], at: [230, 70], name: "d" },
            { tag: "mirrored", properties: "LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true", rect: [40, 40, 40, 40], at: [50, 50], name: "a" },
            { tag: "nothing", properties: "", rect: [40, 40, 40, 40], at: [100, 50], name: "" }
        ]
    }
    function test_whereItemsAre(row) {
        const page = makePage(row.properties)
        const rect = page.workspace.mapFromItem(page.a, 0, 0, page.a.width, page.a.height)
        compare([rect.x, rect.y, rect.width, rect.height], row.rect)
        compare(page.workspace.itemAt(Qt.point(...row.at))?.objectName ?? "", row.name)
        compare(page.workspace.mapFromPlane(page.a.position), Qt.point(rect.x, rect.y))
    }

    function test_stacking() {
        const page = makePage("")
        compare(names(page.workspace.items), "a b c d")
        page.c.z = 1
        compare(page.workspace.itemAt(Qt.point(230, 70)), page.c)
        compare(names(page.workspace.itemsIn(Qt.rect(0, 0, 225, 100), false)), "a b d c")
        compare(names(page.workspace.itemsIn(Qt.rect(0, 0, 225, 100), true)), "a b")
        page.d.visible = false
        page.c.visible = false
        compare(page.workspace.itemAt(Qt.point(230, 70)), null)
        compare(names(page.workspace.items), "a b d c")
    }

    function test_ids() {
        const page = makePage("")
        const id = page.a.itemId.toString().replace(/[{}]/g, "")
        compare(page.workspace.itemById(id), page.a)
        compare(page.workspace.itemById("{" + id + "}"), page.a)
        compare(page.workspace.itemById(""), null)
        ignoreWarning(new RegExp("WorkspaceBase::registerItem.. duplicate item id " + id))
        page.b.itemId = id
        verify(page.b.itemId !== page.a.itemId)
        const removed = spyOn(page.workspace, "itemRemoved")
        page.a.destroy()
        tryCompare(removed, "count", 1)
        compare(removed.signalArguments[0][0], id)
        page.b.itemId = id
        compare(page.workspace.itemById(id), page.b)
        compare(names(page.workspace.items), "b c d")
    }

    function test_inView() {
        const page = makePage("")
        page.b.contentItem = createTemporaryQmlObject("import QtQuick; Item {}", page.b)
        compare([page.a.inView, page.b.inView, page.b.contentItem.visible], [true, true, true])
        page.workspace.viewX = 100
        tryVerify(() => !page.a.inView)
        compare([page.a.visible, page.b.inView], [true, true])
        page.workspace.viewX = 1000
        tryVerify(() => !page.b.contentItem.visible)
        verify(page.b.visible)
        page.workspace.viewX = 0
        tryVerify(() => page.b.contentItem.visible)
        page.workspace.zoom = 0.39
        tryVerify(() => !page.a.detailed && !page.b.contentItem.visible)
    }

    function test_contentOnDemand() {
        const page = makePage("")
        const content = createTemporaryObject(contentComponent, root).content
        page.a.position = Qt.point(2000, 40)
        tryVerify(() => !page.a.inView)
        page.a.contentComponent = content
        waitForRendering(page)
        compare(page.a.children.length, 0)
        page.workspace.viewX = 1900
        tryVerify(() => page.a.children.length === 1)
        compare(page.a.children[0].objectName, "content")
    }

    Component {
        id: contentComponent
        QtObject {
            property Component content: Item { objectName: "content" }
        }
    }

    function test_press_data() {
        const click = (...at) => page => mouseClick(page.workspace, ...at)
        return [
            { tag: "an item", act: click(50, 50), selected: "a" },
            { tag: "another", before: "a", act: click(130, 50), selected: "b" },
            { tag: "with Ctrl", before: "a", act: click(130, 50, Qt.LeftButton, Qt.ControlModifier), selected: "a b" },
            { tag: "with Ctrl, selected", before: "a b", act: click(130, 50, Qt.LeftButton, Qt.ControlModifier), selected: "a" },
            { tag: "with Shift", before: "a", act: click(130, 50, Qt.LeftButton, Qt.ShiftModifier), selected: "a b" },
            { tag: "with Shift, selected", before: "a b", act: click(130, 50, Qt.LeftButton, Qt.ShiftModifier), selected: "a b" },
            { tag: "one of many", before: "a b c", act: click(130, 50), selected: "b" },
            { tag: "one of many, held", before: "a b c", act: page => mousePress(page.workspace, 130, 50), selected: "a b c" },
            { tag: "the background", before: "a b", act: click(100, 100), selected: "" },
            { tag: "right", before: "a b", act: click(210, 50, Qt.RightButton), selected: "c" },
            { tag: "right, selected", before: "a b", act: click(50, 50, Qt.RightButton), selected: "a b" },
            { tag: "not selectable", before: "b", properties: "selectable: false", act: click(50, 50), selected: "b" },
            { tag: "not interactive", before: "b", workspace: "interactive: false", act: click(50, 50), selected: "b" },
            { tag: "read-only", before: "b", workspace: "readOnly: true", act: click(50, 50), selected: "a" },
            { tag: "a finger", before: "b", act: page => touchEvent(page.workspace).press(0, page.workspace, 50, 50).commit().release(0, page.workspace, 50, 50).commit(), selected: "a" },
            { tag: "band", act: page => root.drag(page, [20, 20], [130, 60]), selected: "a b" },
            { tag: "band backwards", before: "c", act: page => root.drag(page, [100, 100], [50, 20]), selected: "a" },
            { tag: "band with Shift", before: "c", act: page => root.drag(page, [20, 20], [130, 60], Qt.ShiftModifier), selected: "c a b" },
            { tag: "band with Ctrl", before: "c a", act: page => root.drag(page, [20, 20], [130, 60], Qt.ControlModifier), selected: "c b" },
            { tag: "band with Alt", act: page => root.drag(page, [20, 20], [130, 90], Qt.AltModifier), selected: "a" },
            { tag: "band taken back", before: "c", act: page => { root.beginDrag(page, [20, 20], [130, 60]); keyClick(Qt.Key_Escape) }, selected: "c" },
            { tag: "band of a finger", act: page => {
                const finger = touchEvent(page.workspace).press(0, page.workspace, 20, 20).commit()
                wait(600)
                finger.move(0, page.workspace, 60, 50).commit().move(0, page.workspace, 130, 60).commit().release(0, page.workspace, 130, 60).commit()
            }, selected: "a b" }
        ]
    }
    function test_press(row) {
        const page = makePage(row.workspace ?? "")
        if (row.properties)
            page.a.selectable = false
        page.workspace.selection.selectIds((row.before ?? "").split(" ").filter(name => name).map(name => page[name].itemId))
        row.act(page)
        compare(selected(page), row.selected)
        verify(!page.workspace.rubberBandActive)
        verify([page.a, page.b, page.c].every(item => item.selected === page.workspace.selection.contains(item)))
        mouseRelease(page.workspace, 1, 1)
    }

    function test_drag_data() {
        return [
            { tag: "one", from: [50, 50], to: [70, 95], places: { a: [60, 85], b: [120, 40] } },
            { tag: "not far enough", from: [50, 50], to: [52, 52], places: { a: [40, 40] }, signals: [] },
            { tag: "all selected", before: "a b", from: [50, 50], to: [70, 95], places: { a: [60, 85], b: [140, 85] } },
            { tag: "locked ones stay", before: "a b", locked: "b", from: [50, 50], to: [70, 95], places: { a: [60, 85], b: [120, 40] } },
            { tag: "a locked one leads nothing", before: "a b", locked: "b", from: [130, 50], to: [150, 95], places: { a: [40, 40], b: [120, 40] }, signals: [] },
            { tag: "larger axis", from: [50, 50], to: [70, 95], modifiers: Qt.ShiftModifier, places: { a: [40, 85] } },
            { tag: "within the plane", before: "a b", from: [130, 50], to: [30, 10], places: { a: [0, 0], b: [80, 0] } },
            { tag: "grid", properties: "snapToGrid: true", before: "a b", from: [50, 50], to: [73, 95], places: { a: [64, 88], b: [144, 88] } },
            { tag: "grid suspended", properties: "snapToGrid: true", from: [50, 50], to: [73, 95], modifiers: Qt.AltModifier, places: { a: [63, 85] } },
            { tag: "to an item", properties: "snapToItems: true", from: [50, 50], to: [133, 95], places: { a: [120, 85] } },
            { tag: "zoomed", properties: "zoom: 2", from: [100, 100], to: [140, 190], places: { a: [60, 85] } },
            { tag: "unit", properties: "unit: 2", from: [100, 100], to: [140, 190], places: { a: [60, 85] } },
            { tag: "read-only", properties: "readOnly: true", from: [50, 50], to: [70, 95], places: { a: [40, 40] }, signals: [] },
            { tag: "Esc", from: [50, 50], to: [70, 95], end: () => keyClick(Qt.Key_Escape), places: { a: [40, 40] }, signals: ["started", "moving", "canceled"] },
            { tag: "second button", from: [50, 50], to: [70, 95], end: page => mousePress(page.workspace, 70, 95, Qt.RightButton), places: { a: [40, 40] }, signals: ["started", "moving", "canceled"] },
            { tag: "hidden workspace", from: [50, 50], to: [70, 95], end: page => page.workspace.visible = false, places: { a: [40, 40] }, signals: ["started", "moving", "canceled"] },
            { tag: "canceled as it starts", on: page => page.workspace.moveStarted.connect(() => page.workspace.cancelGesture()), from: [50, 50], to: [70, 95], places: { a: [40, 40] }, signals: ["started", "canceled"] },
            { tag: "taken back in the end", on: page => page.workspace.itemsMoved.connect(before => page.workspace.moveItems(before)), from: [50, 50], to: [70, 95], places: { a: [40, 40] } },
            { tag: "one is destroyed", before: "a b", from: [50, 50], to: [70, 95], end: page => { page.a.destroy(); wait(0) }, places: { b: [140, 85] } },
            { tag: "one is hidden", before: "a b", from: [130, 50], to: [150, 95], end: page => page.a.visible = false, places: { b: [140, 85] } },
            { tag: "one is taken elsewhere", before: "a b", from: [130, 50], to: [150, 95], end: page => page.a.parent = page, places: { b: [140, 85] } },
            { tag: "the workspace goes", from: [50, 50], to: [70, 95], end: page => { page.workspace.destroy(); wait(0) }, places: {}, signals: ["started", "moving"] }
        ]
    }
    function test_drag(row) {
        const page = makePage(row.properties ?? "")
        for (const name of (row.locked ?? "").split(" ").filter(name => name))
            page[name].locked = true
        page.workspace.selection.selectIds((row.before ?? "").split(" ").filter(name => name).map(name => page[name].itemId))
        const log = []
        const signals = { moveStarted: "started", itemsMoving: "moving", moveCanceled: "canceled", itemsMoved: "moved" }
        for (const name in signals)
            page.workspace[name].connect(() => { if (log[log.length - 1] !== signals[name]) log.push(signals[name]) })
        if (row.on)
            row.on(page)
        beginDrag(page, row.from, row.to, row.modifiers ?? Qt.NoModifier)
        if (row.end)
            row.end(page)
        mouseRelease(page, ...row.to, Qt.LeftButton, row.modifiers ?? Qt.NoModifier)
        for (const name in row.places)
            compare(place(page[name]), row.places[name])
        compare(log, row.signals ?? ["started", "moving", "moved"])
        if (page.workspace)
            compare([page.workspace.moving, page.workspace.guides.length], [false, 0])
        mouseRelease(page, ...row.to, Qt.RightButton)
    }

    function test_whatIsTold() {
        const page = makePage("snapToItems: true")
        const moved = spyOn(page.workspace, "itemsMoved")
        const itemMoved = spyOn(page.a, "moved")
        beginDrag(page, [50, 50], [133, 95], Qt.NoModifier)
        const id = page.a.itemId.toString().replace(/[{}]/g, "")
        compare(page.workspace.movingIds, [id])
        verify(page.a.moving && !page.b.moving)
        compare(page.workspace.guides, [{ orientation: Qt.Vertical, position: 120 }])
        compare(moved.count, 0)
        mouseRelease(page.workspace, 133, 95)
        compare(moved.count, 1)
        const [before, after, cause] = Array.from(moved.signalArguments[0])
        compare([before[id], after[id], cause], [Qt.point(40, 40), Qt.point(120, 85), "drag"])
        compare(Array.from(itemMoved.signalArguments[0]), [Qt.point(40, 40), Qt.point(120, 85)])
    }

    // A page's binding lasts, and what it says during a move waits for the end.
    function test_bindings_data() {
        return [
            { tag: "released", cancel: false, during: 500, shown: [60, 85] },
            { tag: "taken back", cancel: true, during: 500, shown: [500, 40] },
            { tag: "taken back, the page silent", cancel: true, during: 40, shown: [40, 40] }
        ]
    }
    function test_bindings(row) {
        const page = makePage("")
        const model = createTemporaryQmlObject("import QtQuick; QtObject { property point place: Qt.point(40, 40) }", page)
        page.a.position = Qt.binding(() => model.place)
        beginDrag(page, [50, 50], [70, 95], Qt.NoModifier)
        model.place = Qt.point(row.during, 40)
        compare(place(page.a), [60, 85])
        if (row.cancel)
            keyClick(Qt.Key_Escape)
        mouseRelease(page.workspace, 70, 95)
        compare(place(page.a), row.shown)
        model.place = Qt.point(7, 8)
        compare(place(page.a), [7, 8])
    }

    function test_resize_data() {
        return [
            { tag: "larger", to: [100, 110], size: [60, 70] },
            { tag: "not smaller than that", to: [10, 10], size: [32, 32] },
            { tag: "grid", properties: "snapToGrid: true", to: [99, 110], size: [56, 72] },
            { tag: "read-only", properties: "readOnly: true", to: [100, 110], size: [40, 40] },
            { tag: "Esc", to: [100, 110], cancel: true, size: [40, 40] }
        ]
    }
    function test_resize(row) {
        const page = makePage(row.properties ?? "")
        page.a.resizable = true
        page.workspace.selection.select(page.a)
        const resized = spyOn(page.workspace, "itemsResized")
        beginDrag(page, [80, 80], row.to, Qt.NoModifier)
        if (row.cancel)
            keyClick(Qt.Key_Escape)
        mouseRelease(page.workspace, ...row.to)
        compare([page.a.size.width, page.a.size.height], row.size)
        compare([page.a.width, page.a.height], row.size)
        compare(resized.count, row.size[0] === 40 ? 0 : 1)
    }

    function test_view_data() {
        return [
            { tag: "wheel", act: w => mouseWheel(w, 100, 100, 0, -120), view: [100, 164, 1] },
            { tag: "wheel with Shift", act: w => mouseWheel(w, 100, 100, 0, -120, Qt.NoButton, Qt.ShiftModifier), view: [164, 100, 1] },
            { tag: "wheel with Ctrl", act: w => mouseWheel(w, 100, 50, 0, 120, Qt.NoButton, Qt.ControlModifier), view: [120, 110, 1.25] },
            { tag: "middle drag", act: w => mouseDrag(w, 200, 200, -40, -30, Qt.MiddleButton), view: [140, 130, 1] },
            { tag: "Space and drag", act: w => { w.forceActiveFocus(); keyPress(Qt.Key_Space); mouseDrag(w, 200, 200, -40, -30); keyRelease(Qt.Key_Space) }, view: [140, 130, 1] },
            { tag: "Space and drag over a button", act: w => {
                const button = createTemporaryQmlObject("import TambleClient.Control 1.0; RButton { text: 'all'; width: 900; height: 900; onClicked: text = 'clicked' }", w.plane)
                w.forceActiveFocus()
                keyPress(Qt.Key_Space)
                mouseDrag(w, 200, 200, -40, -30)
                keyRelease(Qt.Key_Space)
                compare(button.text, "all")
            }, view: [140, 130, 1] },
            { tag: "finger", act: w => touchEvent(w).press(0, w, 200, 200).commit().move(0, w, 180, 180).commit().move(0, w, 160, 170).commit().release(0, w, 160, 170).commit(), view: [140, 130, 1] },
            { tag: "pinch", act: w => touchEvent(w).press(0, w, 150, 100).press(1, w, 250, 100).commit().move(0, w, 110, 110).move(1, w, 310, 110).commit().release(0, w, 110, 110).release(1, w, 310, 110).commit(), view: [195, 145, 2] },
            { tag: "arrow", act: w => { w.forceActiveFocus(); keyClick(Qt.Key_Down) }, view: [100, 140, 1] },
            { tag: "Ctrl+Plus", act: w => { w.forceActiveFocus(); keyClick(Qt.Key_Plus, Qt.ControlModifier) }, view: [140, 130, 1.25] },
            { tag: "Ctrl+1", act: w => { w.forceActiveFocus(); keyClick(Qt.Key_1, Qt.ControlModifier) }, view: [24, 10, 1.6] },
            { tag: "not a number", act: w => { w.zoom = NaN; w.viewX = NaN; w.viewY = Infinity; w.zoomTo(NaN, Qt.point(0, 0)); w.unit = 0 }, view: [100, 100, 1] },
            { tag: "far out", act: w => { w.viewX = 1e9; w.viewY = -1e9 }, view: [3936, -236, 1] },
            { tag: "not interactive", act: w => { w.interactive = false; mouseWheel(w, 100, 100, 0, -120); mouseDrag(w, 200, 200, -40, -30, Qt.MiddleButton) }, view: [100, 100, 1] }
        ]
    }
    function test_view(row) {
        const page = makePage("viewX: 100; viewY: 100")
        const workspace = page.workspace
        row.act(workspace)
        if (row.tag === "Ctrl+1") {
            compare(workspace.zoom, 1.6)
            verify(workspace.mapFromPlane(page.a.position).x >= 24)
            return
        }
        compare([workspace.viewX, workspace.viewY, workspace.zoom].map(number => Math.round(number * 1000) / 1000), row.view)
        compare(selected(page), "")
    }

    function test_edgeScroll() {
        const page = makePage("")
        beginDrag(page, [50, 50], [395, 150], Qt.NoModifier)
        const begun = place(page.a)[0]
        tryVerify(() => page.workspace.viewX > 60)
        verify(place(page.a)[0] >= begun + 60)
        compare(page.workspace.viewY, 0)
        mouseMove(page.workspace, 200, 150)
        const rest = page.workspace.viewX
        wait(50)
        compare(page.workspace.viewX, rest)
        mouseRelease(page.workspace, 200, 150)
    }

    function test_keys_data() {
        return [
            { tag: "arrow", before: "a", keys: [[Qt.Key_Right]], places: { a: [48, 40] } },
            { tag: "several are one", before: "a b", keys: [[Qt.Key_Right], [Qt.Key_Right], [Qt.Key_Down]], places: { a: [56, 48], b: [136, 48] } },
            { tag: "Shift", before: "a", keys: [[Qt.Key_Right, Qt.ShiftModifier]], places: { a: [41, 40] } },
            { tag: "Ctrl", before: "a", keys: [[Qt.Key_Down, Qt.ControlModifier]], places: { a: [40, 80] } },
            { tag: "as far as the plane", before: "a b", keys: [[Qt.Key_Left, Qt.ControlModifier], [Qt.Key_Left, Qt.ControlModifier], [Qt.Key_Right]], places: { a: [8, 40], b: [88, 40] } },
            { tag: "Esc", before: "a", keys: [[Qt.Key_Right], [Qt.Key_Escape]], places: { a: [40, 40] }, count: 0 },
            { tag: "read-only", before: "a", properties: "readOnly: true", keys: [[Qt.Key_Right]], places: { a: [40, 40] }, count: 0 }
        ]
    }
    function test_keys(row) {
        const page = makePage("snapToGrid: true; " + (row.properties ?? ""))
        page.workspace.forceActiveFocus()
        page.workspace.selection.selectIds(row.before.split(" ").map(name => page[name].itemId))
        const moved = spyOn(page.workspace, "itemsMoved")
        for (const key of row.keys)
            keyClick(...key)
        for (const name in row.places)
            compare(place(page[name]), row.places[name])
        compare(moved.count, 0)
        tryCompare(moved, "count", row.count ?? 1, 1000)
        if (moved.count)
            compare(moved.signalArguments[0][2], "keyboard")
        wait(50)
        compare(moved.count, row.count ?? 1)
    }

    function test_keysEndAtOnce() {
        const page = makePage("")
        const moved = spyOn(page.workspace, "itemsMoved")
        page.workspace.selection.select(page.a)
        page.workspace.nudge(3, 4)
        mousePress(page.workspace, 300, 200)
        compare(moved.count, 1)
        compare(place(page.a), [43, 44])
        mouseRelease(page.workspace, 300, 200)
    }

    function test_tab() {
        const page = makePage("")
        const [before, after] = [page.children[0], page.children[2]]
        const button = createTemporaryQmlObject("import TambleClient.Control 1.0; RButton { text: 'inside' }", page.b)
        before.forceActiveFocus()
        keyClick(Qt.Key_Tab)
        verify(page.workspace.activeFocus)
        for (const item of [page.a, page.b, page.c, page.d]) {
            keyClick(Qt.Key_Tab)
            compare(page.workspace.currentItem, item)
            verify(item.keyFocus)
        }
        keyClick(Qt.Key_Tab)
        verify(after.activeFocus && !page.d.keyFocus)
        keyClick(Qt.Key_Tab, Qt.ShiftModifier)
        verify(page.workspace.activeFocus && page.d.keyFocus)
        keyClick(Qt.Key_Tab, Qt.ShiftModifier)
        compare(page.workspace.currentItem, page.c)
        verify(!button.activeFocus)
        page.c.position = Qt.point(3000, 2000)
        keyClick(Qt.Key_Tab, Qt.ShiftModifier)
        keyClick(Qt.Key_Tab)
        keyClick(Qt.Key_Tab)
        compare(page.workspace.currentItem, page.c)
        verify(page.workspace.viewX > 2000 && page.workspace.viewY > 1000)
    }

    function test_tabFromAControlOnAnItem() {
        const page = makePage("")
        const [before, after] = [page.children[0], page.children[2]]
        const inside = [0, 20].map(y => createTemporaryQmlObject(
            `import TambleClient.Control 1.0; RButton { text: 'inside'; width: 40; height: 20; y: ${y} }`, page.b))
        createTemporaryQmlObject("import TambleClient.Control 1.0; RButton { text: 'of another' }", page.c)
        mouseClick(inside[0])
        inside[0].forceActiveFocus()
        compare(page.workspace.currentItem, page.b)
        keyClick(Qt.Key_Tab)
        verify(inside[1].activeFocus)
        keyClick(Qt.Key_Tab)
        verify(after.activeFocus)
        inside[0].forceActiveFocus()
        keyClick(Qt.Key_Tab, Qt.ShiftModifier)
        verify(page.workspace.activeFocus && page.b.keyFocus)
        keyClick(Qt.Key_Tab)
        verify(page.c.keyFocus)
    }

    function test_commands_data() {
        return [
            { tag: "Space", keys: [[Qt.Key_Space]], selected: "b", log: [] },
            { tag: "Ctrl+Space", before: "a", keys: [[Qt.Key_Space, Qt.ControlModifier]], selected: "a b", log: [] },
            { tag: "Enter", keys: [[Qt.Key_Return]], selected: "", log: ["activated b"] },
            { tag: "Ctrl+A", keys: [[Qt.Key_A, Qt.ControlModifier]], selected: "a b c", log: [] },
            { tag: "Esc", before: "a", keys: [[Qt.Key_Escape]], selected: "", log: [] },
            { tag: "Delete", before: "a c", keys: [[Qt.Key_Delete]], selected: "a c", log: ["delete a,c"] },
            { tag: "Backspace, nothing selected", keys: [[Qt.Key_Backspace]], selected: "", log: [] },
            { tag: "Delete, read-only", before: "a", properties: "readOnly: true", keys: [[Qt.Key_Delete]], selected: "a", log: [] },
            { tag: "menu", keys: [[Qt.Key_F10, Qt.ShiftModifier]], selected: "", log: ["menu b"] }
        ]
    }
    function test_commands(row) {
        const page = makePage(row.properties ?? "")
        page.d.selectable = false
        const name = id => page.workspace.itemById(id)?.objectName ?? "background"
        const log = []
        page.workspace.itemActivated.connect(id => log.push("activated " + name(id)))
        page.workspace.deleteRequested.connect(ids => log.push("delete " + ids.map(name)))
        page.workspace.contextMenuRequested.connect((point, id) => log.push("menu " + name(id)))
        page.workspace.forceActiveFocus()
        keyClick(Qt.Key_Tab)
        keyClick(Qt.Key_Tab)
        page.workspace.selection.selectIds((row.before ?? "").split(" ").filter(name => name).map(name => page[name].itemId))
        if (row.before)
            keyClick(Qt.Key_Tab, row.before === "a" ? Qt.NoModifier : Qt.ShiftModifier)
        for (const key of row.keys)
            keyClick(...key)
        compare(selected(page), row.selected)
        compare(log, row.log)
    }

    function test_clicks() {
        const page = makePage("")
        const workspace = page.workspace
        const log = logged(workspace, { backgroundClicked: "click", backgroundDoubleClicked: "double" })
        page.a.clicked.connect(() => log.push("a"))
        page.a.doubleClicked.connect(() => log.push("a twice"))
        workspace.itemActivated.connect(() => log.push("activated"))
        workspace.contextMenuRequested.connect((point, id) => log.push("menu " + (workspace.itemById(id)?.objectName ?? "")))
        mouseDoubleClickSequence(workspace, 50, 50)
        compare(log.splice(0), ["a", "a twice", "activated"])
        mouseDoubleClickSequence(workspace, 300, 200)
        compare(log.splice(0).map(text => text.split(" ")[0]), ["click", "double"])
        mouseClick(workspace, 300, 200, Qt.RightButton)
        mouseClick(workspace, 50, 50, Qt.RightButton)
        compare(log.splice(0), ["menu ", "menu a"])
        const finger = touchEvent(workspace).press(0, workspace, 50, 50).commit()
        tryVerify(() => log.length === 1, 1000)
        compare(log, ["menu a"])
        finger.release(0, workspace, 50, 50).commit()
        compare(log, ["menu a"])
    }

    function test_pointer() {
        const page = makePage("zoom: 2")
        mouseMove(page.workspace, 100, 100)
        tryVerify(() => page.a.hovered)
        compare([page.workspace.pointerInside, page.workspace.pointerPosition], [true, Qt.point(50, 50)])
        mouseMove(page.workspace, 10, 10)
        tryVerify(() => !page.a.hovered)
    }

    function test_arrange_data() {
        return [
            { tag: "left", act: w => w.align(Qt.AlignLeft), xs: [40, 40, 40], cause: "align" },
            { tag: "centre", act: w => w.align(Qt.AlignHCenter), xs: [130, 130, 130], cause: "align" },
            { tag: "no edge", act: w => w.align(7), xs: [40, 120, 220] },
            { tag: "equal gaps", act: w => w.distribute(Qt.Horizontal), xs: [40, 130, 220], cause: "distribute" },
            { tag: "read-only", act: w => { w.readOnly = true; w.align(Qt.AlignLeft) }, xs: [40, 120, 220] }
        ]
    }
    function test_arrange(row) {
        const page = makePage("")
        page.workspace.selection.selectIds([page.a.itemId, page.b.itemId, page.d.itemId])
        const moved = spyOn(page.workspace, "itemsMoved")
        row.act(page.workspace)
        compare([page.a, page.b, page.d].map(item => item.position.x), row.xs)
        compare(moved.count, row.cause ? 1 : 0)
        if (row.cause)
            compare(moved.signalArguments[0][2], row.cause)
    }

    function test_moveItems() {
        const page = makePage("readOnly: true")
        const moved = spyOn(page.workspace, "itemsMoved")
        page.workspace.moveItems({ [page.a.itemId]: Qt.point(-20, 100), [page.b.itemId]: Qt.point(60, 1e9), nonsense: Qt.point(1, 1) })
        compare([place(page.a), place(page.b)], [[0, 0], [80, 1e9 - 100]])
        page.workspace.resizeItems({ [page.a.itemId]: Qt.rect(10, 20, 50, 5) })
        compare([place(page.a), [page.a.width, page.a.height]], [[10, 20], [50, 32]])
        page.workspace.moveItems({ [page.a.itemId]: Qt.point(NaN, 3) })
        compare(place(page.a), [10, 20])
        compare(moved.count, 0)
    }
}
