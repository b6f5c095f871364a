import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RWorksheetBase"

    function makePage(): var {
        const page = make(`RWorksheetBase { id: page; width: 400; height: 300
            property alias frame: frame; property alias item: item; property alias inner: workspace
            Item { id: frame; x: 100; width: 300; height: 300
                RWorkspaceBase { id: workspace; anchors.fill: parent; zoom: 2
                    RWorkspaceItemBase { id: item; width: 40; height: 40 } } } }`)
        waitForRendering(page)
        return page
    }

    function test_workspace() {
        const page = makePage()
        compare(page.workspace, page.inner)
        page.frame.parent = null
        compare(page.workspace, null)
        page.frame.parent = page
        compare(page.workspace, page.inner)
        page.inner.parent = page
        compare(page.workspace, page.inner)
        page.inner.parent = page.frame
        page.inner.parent = root
        compare(page.workspace, null)
        page.inner.parent = page.frame
        page.inner.destroy()
        tryCompare(page, "workspace", null)
    }

    function test_modified_data() {
        return [
            { tag: "moved", act: page => { page.workspace.selection.select(page.item); page.workspace.nudge(8, 0); mousePress(page.workspace, 200, 200) }, modified: true },
            { tag: "put by the page", act: page => page.workspace.moveItems({ [page.item.itemId]: Qt.point(5, 5) }), modified: false },
            { tag: "marked", act: page => page.markModified(), modified: true },
            { tag: "saved", act: page => { page.markModified(); page.markSaved() }, modified: false }
        ]
    }
    function test_modified(row) {
        const page = makePage()
        row.act(page)
        compare(page.modified, row.modified)
        mouseRelease(page, 200, 200)
    }

    function test_readOnly() {
        const page = makePage()
        page.readOnly = true
        verify(page.workspace.readOnly)
        page.readOnly = false
        verify(!page.workspace.readOnly)
    }

    function test_pointer() {
        const page = makePage()
        mouseMove(page, 120, 40)
        tryVerify(() => page.pointerInside)
        compare(page.pointerPosition, Qt.point(10, 20))
        page.inner.destroy()
        tryCompare(page, "workspace", null)
        compare(page.pointerPosition, Qt.point(120, 40))
    }
}
