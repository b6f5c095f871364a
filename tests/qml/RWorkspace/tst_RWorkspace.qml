import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

/*! The look of a canvas of 300 by 200 pixels and what it does with it. */
ThemedTestCase {
    id: root
    name: "RWorkspace"

    function workspaceOf(body: string): var {
        const workspace = make("RWorkspace { width: 300; height: 200; " + body + " }")
        waitForRendering(workspace)
        return workspace
    }

    function scrollBarsOf(workspace: Item): var {
        const bars = Array.from(workspace.children).find(child => child.canvas === workspace)
        return bars ? Array.from(bars.children) : []
    }

    function test_scrollBars_data() {
        return [
            { tag: "all is seen", properties: "planeRect: Qt.rect(0, 0, 300, 200)", visible: [] },
            { tag: "too wide", properties: "planeRect: Qt.rect(0, 0, 600, 200)", visible: [Qt.Horizontal] },
            { tag: "too high", properties: "planeRect: Qt.rect(0, 0, 300, 400)", visible: [Qt.Vertical] },
            { tag: "both", properties: "planeRect: Qt.rect(0, 0, 600, 400)", visible: [Qt.Horizontal, Qt.Vertical] },
            { tag: "fitted", properties: "planeRect: Qt.rect(0, 0, 613, 170); zoom: 0.9; Component.onCompleted: zoomToFit()", visible: [] }
        ]
    }
    function test_scrollBars(row) {
        const workspace = workspaceOf(row.properties)
        compare(scrollBarsOf(workspace).filter(bar => bar.visible).map(bar => bar.orientation), row.visible)
    }

    function test_scrolling() {
        const workspace = workspaceOf("planeRect: Qt.rect(0, 0, 600, 400)")
        for (const [bar, name] of [[scrollBarsOf(workspace)[0], "viewX"], [scrollBarsOf(workspace)[1], "viewY"]]) {
            const isLying = bar.orientation === Qt.Horizontal
            mousePress(bar, isLying ? 20 : 4, isLying ? 4 : 20)
            mouseMove(bar, isLying ? 60 : 4, isLying ? 4 : 60)
            mouseRelease(bar, isLying ? 60 : 4, isLying ? 4 : 60)
            fuzzyCompare(workspace[name], 80, 4)
            workspace[name] = 100
            waitForRendering(workspace)
            fuzzyCompare(bar.position, isLying ? 100 / 600 : 100 / 400, 1e-6)
        }
    }

    // Keys of the window count where the canvas has not the focus.
    function test_zoomKeys() {
        const page = make("Item { id: page; property int pressed: 0; property Item workspace: RWorkspace { parent: page; width: 300; height: 200 } property Item other: Item { parent: page }\n" + Array.from(["Ctrl+=", "Ctrl++", "Ctrl+-", "Ctrl+0"], keys => "Shortcut { sequence: '" + keys + "'; onActivated: ++page.pressed }").join("\n") + " }")
        const press = () => {
            const zooms = []
            for (const [key, modifiers] of [[Qt.Key_Plus, Qt.ControlModifier], [Qt.Key_0, Qt.ControlModifier], [Qt.Key_Minus, Qt.ControlModifier]]) {
                keyClick(key, modifiers)
                zooms.push(page.workspace.zoom)
            }
            return zooms
        }
        page.workspace.forceActiveFocus()
        compare(press(), [1.25, 1, 0.8])
        compare(page.pressed, 0)
        page.other.forceActiveFocus()
        compare(press(), [0.8, 0.8, 0.8])
        compare(page.pressed, 3)
    }
}
