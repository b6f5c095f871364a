import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RDraggableItem"

    /*! A source at the left, 60 by 40 with a button in it, and an area at the right. */
    function page(source: string, area: string): var {
        return make(`Item {
            id: top
            width: 300; height: 200
            property alias source: inner
            property alias area: target
            property var log: []
            RDraggableItem {
                id: inner
                width: 60; height: 40
                dragData: 7
                ${source}
                onDragStarted: top.log.push("started")
                onDropped: (area, action) => top.log.push("dropped " + (area === target) + " " + action)
                onCanceled: top.log.push("canceled")
                RButton { width: 60; height: 40; text: "x"; onClicked: top.log.push("clicked") }
            }
            DropArea {
                id: target
                x: 200; width: 100; height: 200
                ${area}
                onEntered: drag => top.log.push("entered " + drag.source.dragData)
                onExited: top.log.push("exited")
            }
        }`)
    }

    function drag(page: var, toX: real, toY: real) {
        mousePress(page, 20, 20)
        mouseMove(page, 26, 20)
        mouseMove(page, 40, 20)
        mouseMove(page, toX, toY)
        wait(0)
    }

    function ghost(): var {
        let top = root
        while (top.parent)
            top = top.parent
        return Array.from(top.children).find(child => child.z > 1000000) ?? null
    }

    function test_drags_data() {
        const taken = "onDropped: drop => drop.accept()"
        return [
            { tag: "taken", area: taken, log: ["started", "entered 7", "dropped true 2"] },
            { tag: "beside", area: taken, to: [100, 100], log: ["started", "canceled"] },
            { tag: "refused", area: "onDropped: drop => drop.accepted = false", log: ["started", "entered 7", "canceled"] },
            { tag: "other keys", source: "dragKeys: ['a']", area: "keys: ['b']; " + taken, log: ["started", "canceled"] },
            { tag: "its key", area: "keys: ['tamble']; " + taken, log: ["started", "entered 7", "dropped true 2"] },
            { tag: "Esc", area: taken, act: () => keyClick(Qt.Key_Escape), log: ["started", "entered 7", "exited", "canceled"] },
            { tag: "copied", source: "supportedActions: Qt.CopyAction", area: "onDropped: drop => drop.accept(Qt.CopyAction)", log: ["started", "entered 7", "dropped true 1"] },
            { tag: "off", source: "dragEnabled: false", area: taken, log: [] },
            { tag: "not by the handle", source: "handle: Item { parent: inner; x: 50; width: 10; height: 40 }", area: taken, log: [] },
            { tag: "down only", source: "axis: Drag.YAxis", area: taken, log: ["started", "canceled"] },
            { tag: "the area goes", area: taken, act: page => page.area.destroy(), log: ["started", "entered 7", "canceled"] },
            { tag: "the area goes as it takes", area: "onDropped: drop => { drop.accept(); target.destroy() }", log: ["started", "entered 7", "dropped true 2"] },
            { tag: "the area leaves as it takes", area: "onDropped: drop => { drop.accept(); target.parent = null }", log: ["started", "entered 7", "dropped true 2"] },
            { tag: "hidden", area: taken, act: page => page.source.visible = false, log: ["started", "entered 7", "exited", "canceled"] },
        ]
    }
    function test_drags(data) {
        const top = page(data.source ?? "", data.area)
        waitForRendering(top)
        drag(top, ...(data.to ?? [250, 100]))
        if (data.act) {
            data.act(top)
            wait(0)
        }
        mouseRelease(top, ...(data.to ?? [250, 100]))
        compare(top.log.filter(word => word !== "clicked"), data.log)
        tryVerify(() => ghost() === null)
        compare(top.source.x, 0, "the content stays")
        mouseClick(top, 20, 20)
        if (top.source.visible)
            compare(top.log[top.log.length - 1], "clicked", "the button still works")
    }

    function test_picture() {
        const top = page("", "")
        waitForRendering(top)
        drag(top, 120, 70)
        const picture = ghost()
        const place = picture.mapToItem(top, 0, 0)
        compare([place.x, place.y, picture.width, picture.height], [100, 50, 60, 40])
        verify(top.source.dragging)
        mouseRelease(top, 120, 70)
        verify(!top.source.dragging)
        tryVerify(() => ghost() === null)
    }

    function test_fingers() {
        const top = page("", "onDropped: drop => drop.accept()")
        waitForRendering(top)
        touchEvent(top).press(0, top, 20, 20).commit()
        touchEvent(top).move(0, top, 60, 20).commit()
        touchEvent(top).release(0, top, 60, 20).commit()
        verify(!top.log.includes("started"), "a finger that moves at once scrolls")
        touchEvent(top).press(0, top, 20, 20).commit()
        tryCompare(top.source, "dragging", true)
        touchEvent(top).move(0, top, 250, 100).commit()
        tryVerify(() => top.log.includes("entered 7"))
        touchEvent(top).release(0, top, 250, 100).commit()
        compare(top.log[top.log.length - 1], "dropped true 2")
        verify(!top.source.dragging)
    }

    function test_inAList() {
        const view = make(`ListView { id: view; width: 100; height: 100; model: 20; boundsBehavior: Flickable.StopAtBounds
            delegate: RDraggableItem { width: 100; height: 30; dragData: index; required property int index; RText { text: 'x' } } }`)
        waitForRendering(view)
        mousePress(view, 10, 80)
        for (let y = 76; y > 10; y -= 4)
            mouseMove(view, 10, y)
        compare(view.contentY, 0, "the mouse drags")
        verify(ghost() !== null)
        mouseRelease(view, 10, 10)
        tryVerify(() => ghost() === null)
        touchEvent(view).press(0, view, 10, 80).commit()
        // Moves of a finger are delivered with the next frame.
        for (let y = 76; y > 10; y -= 8) {
            touchEvent(view).move(0, view, 10, y).commit()
            wait(20)
        }
        verify(view.contentY > 0, "a finger scrolls")
        touchEvent(view).release(0, view, 10, 10).commit()
    }

    function test_goesInMidDrag_data() {
        return [
            { tag: "source while dragging", when: "drag" },
            { tag: "source as it starts", when: "dragStarted" },
            { tag: "source as it is dropped", when: "dropped" },
            { tag: "source as it is taken back", when: "canceled" },
            { tag: "all of the page", when: "page" },
        ]
    }
    function test_goesInMidDrag(data) {
        const top = page("", "onDropped: drop => drop.accept()")
        waitForRendering(top)
        if (top.source[data.when])
            top.source[data.when].connect(() => top.source.destroy())
        drag(top, 250, 100)
        if (data.when === "drag")
            top.source.destroy()
        else if (data.when === "page")
            top.destroy()
        else if (data.when === "canceled")
            keyClick(Qt.Key_Escape)
        wait(0)
        mouseRelease(root, 250, 100)
        tryVerify(() => ghost() === null)
    }

    function test_windowGoes() {
        const window = createTemporaryQmlObject(`import QtQuick
            import TambleClient.Control 1.0
            Window { id: top; width: 200; height: 100; visible: true
                RDraggableItem { width: 60; height: 40; Rectangle { anchors.fill: parent } } }`, root)
        waitForRendering(window.contentItem)
        const content = window.contentItem
        mousePress(content, 20, 20)
        mouseMove(content, 26, 20)
        mouseMove(content, 60, 20)
        window.destroy()
        wait(50)
    }
}
