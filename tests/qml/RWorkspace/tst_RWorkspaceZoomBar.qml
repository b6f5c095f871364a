import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RWorkspaceZoomBar"

    property var workspace: null
    property var bar: null
    property var slider: null

    function init() {
        failOnWarning(/.*/)
        const page = make("Item { property Item workspace: workspace; property Item bar: bar; width: 400; height: 300; RWorkspace { id: workspace; width: 400; height: 200 } RWorkspaceZoomBar { id: bar; y: 200; workspace: workspace } }")
        root.workspace = page.workspace
        root.bar = page.bar
        root.slider = part("percent", 100)
    }

    function part(property: string, value: var): var {
        return Array.from(root.bar.contentItem.children).find(child => child[property] === value)
    }

    function test_buttons_data() {
        return [
            { tag: "zoom in", from: 1, to: 1.25 },
            { tag: "zoom out", from: 1, to: 0.8 },
            { tag: "zoom in", from: 4, to: 4 },
            { tag: "zoom out", from: 0.2, to: 0.2 },
            { tag: "fit all", from: 4, to: 0.2 }
        ]
    }
    function test_buttons(row) {
        root.workspace.zoom = row.from
        const middle = root.workspace.mapToPlane(Qt.point(200, 100))
        mouseClick(part("label", row.tag))
        fuzzyCompare(root.workspace.zoom, row.to, 1e-6)
        if (row.tag !== "fit all")
            fuzzyCompare(root.workspace.mapToPlane(Qt.point(200, 100)).x, middle.x, row.from === 0.2 ? 1e6 : 1e-6)
    }

    function test_slider() {
        const place = 1 / Math.log(20)
        for (const [zoom, at] of [[0.2, 0], [4, 1], [0.2 * Math.E, place]]) {
            root.workspace.zoom = zoom
            fuzzyCompare(root.slider.value, at, 1e-6)
        }
        root.slider.forceActiveFocus()
        root.workspace.zoom = 1
        keyClick(Qt.Key_Right)
        fuzzyCompare(root.workspace.zoom, 1.25, 1e-6)
        keyClick(Qt.Key_Left)
        fuzzyCompare(root.workspace.zoom, 1, 1e-6)
        compare(part("label", "zoom factor").text, "100 %")
    }

    function test_detent() {
        const one = Math.log(5) / Math.log(20)
        const room = root.slider.availableWidth - root.slider.handle.width
        const xOf = place => root.slider.leftPadding + root.slider.handle.width / 2 + place * room
        mousePress(root.slider, xOf(0.1), 16)
        mouseMove(root.slider, xOf(0.3), 16)
        verify(root.workspace.zoom < 0.9)
        mouseMove(root.slider, xOf(one) + 1, 16)
        compare(root.workspace.zoom, 1)
        mouseMove(root.slider, xOf(one) + 6, 16)
        verify(root.workspace.zoom > 1.1)
        mouseRelease(root.slider, xOf(one) + 6, 16)
    }

    function test_menu() {
        const button = part("label", "zoom factor")
        mouseClick(button)
        const menu = button.flyout
        tryVerify(() => menu.opened)
        verify(!menu.itemAt(8).enabled, "nothing is selected")
        waitForRendering(menu.contentItem)
        mouseClick(menu.itemAt(0))
        fuzzyCompare(root.workspace.zoom, 0.25, 1e-6)
        compare(button.text, "25 %")
    }

    // One stop of the Tab key, from which all can be done.
    function test_keys() {
        root.workspace.forceActiveFocus()
        const before = root.workspace.nextItemInFocusChain(true)
        compare(before, root.slider)
        compare(root.slider.nextItemInFocusChain(true), root.workspace)
        const menu = part("label", "zoom factor").flyout
        for (const key of [Qt.Key_Space, Qt.Key_Return]) {
            root.slider.forceActiveFocus()
            keyClick(key)
            tryVerify(() => menu.opened)
            keyClick(Qt.Key_Escape)
            tryVerify(() => !menu.visible)
            tryVerify(() => root.slider.activeFocus)
        }
    }

    function test_withoutAWorkspace() {
        root.bar.workspace = null
        verify(!root.bar.contentItem.enabled)
        root.bar.workspace = root.workspace
        root.workspace.destroy()
        tryVerify(() => !root.bar.contentItem.enabled)
        root.slider.step(1)
    }
}
