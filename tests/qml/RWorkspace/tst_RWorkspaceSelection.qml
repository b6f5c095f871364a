import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RWorkspaceSelection"

    // Two workspaces with items a, b, c and d, e.
    function makePage(): var {
        return make(`Item { id: page; width: 400; height: 300
            property RWorkspaceSelection shared: RWorkspaceSelection {}
            property alias first: first; property alias second: second; property RWorkspaceItemBase foreign: RWorkspaceItemBase {}
            property alias a: a; property alias b: b; property alias c: c; property alias d: d; property alias e: e
            RWorkspaceBase { id: first; width: 200; height: 300; selection: page.shared
                RWorkspaceItemBase { id: a; objectName: 'a'; position: Qt.point(0, 0); width: 10; height: 10 }
                RWorkspaceItemBase { id: b; objectName: 'b'; position: Qt.point(50, 0); width: 10; height: 10 }
                RWorkspaceItemBase { id: c; objectName: 'c'; position: Qt.point(0, 90); width: 10; height: 10 } }
            RWorkspaceBase { id: second; width: 200; height: 300; x: 200; selection: page.shared
                RWorkspaceItemBase { id: d; objectName: 'd'; position: Qt.point(100, 20); width: 10; height: 10 }
                RWorkspaceItemBase { id: e; objectName: 'e'; position: Qt.point(0, 0); width: 10; height: 10 } } }`)
    }
    function names(selection: var): string {
        return Array.from(selection.items, item => item.objectName).join(" ")
    }
    function record(page: var): var {
        const log = []
        page.shared.itemSelected.connect(item => log.push("+" + item.objectName))
        page.shared.itemDeselected.connect(item => log.push("-" + item.objectName))
        page.shared.selectionChanged.connect(() => log.push(names(page.shared)))
        return log
    }

    function test_operations_data() {
        const select = (name, mode) => page => page.shared.select(page[name], mode)
        const ids = (names, mode) => page => page.shared.selectIds(names.split(" ").map(name => page[name].itemId), mode)
        return [
            { tag: "replace", before: "a", act: select("b", RWorkspaceSelection.Replace), log: ["-a", "+b", "b"], current: "b" },
            { tag: "replace by itself", before: "a", act: select("a", RWorkspaceSelection.Replace), log: [], current: "a" },
            { tag: "add", before: "a", act: select("d", RWorkspaceSelection.Add), log: ["+d", "a d"], current: "d" },
            { tag: "add again", before: "a b", act: select("a", RWorkspaceSelection.Add), log: [], current: "a" },
            { tag: "toggle", before: "a b", act: ids("b c", RWorkspaceSelection.Toggle), log: ["-b", "+c", "a c"], current: "c" },
            { tag: "remove", before: "a b d", act: ids("a d e", RWorkspaceSelection.Remove), log: ["-a", "-d", "b"], current: "b" },
            { tag: "one twice", before: "", act: ids("a a", RWorkspaceSelection.Replace), log: ["+a", "a"], current: "a" },
            { tag: "null", before: "a", act: page => page.shared.select(null, RWorkspaceSelection.Replace), log: [], current: "a" },
            { tag: "foreign", before: "a", act: select("foreign", RWorkspaceSelection.Replace), log: [], current: "a" },
            { tag: "no workspace item", before: "a", act: select("first", RWorkspaceSelection.Replace), log: [], current: "a" },
            { tag: "clear", before: "a d", act: page => page.shared.clear(), log: ["-a", "-d", ""] },
            { tag: "hidden", before: "a d", act: page => page.a.visible = false, log: ["-a", "d"], current: "d" },
            { tag: "hidden workspace", before: "a d", act: page => page.first.visible = false, log: [], current: "d" },
            { tag: "hidden on a hidden workspace", before: "a d", act: page => { page.first.visible = false; page.a.visible = false; page.first.visible = true }, log: ["-a", "d"], current: "d" },
            { tag: "taken elsewhere", before: "a d", act: page => page.a.parent = page, log: ["-a", "d"], current: "d" },
            { tag: "destroyed", before: "a d", act: page => { page.d.destroy(); wait(0) }, log: ["a"], current: "a" },
            { tag: "a workspace goes", before: "a d", act: page => { page.second.destroy(); wait(0) }, log: ["a"], current: "a" },
            { tag: "another selection", before: "a d", act: page => page.second.selection = null, log: ["-d", "a"], current: "a" },
            { tag: "cleared by who hears", before: "", on: page => page.shared.itemSelected.connect(() => page.shared.clear()), act: select("a", RWorkspaceSelection.Replace), last: "" }
        ]
    }
    function test_operations(row) {
        const page = makePage()
        page.shared.selectIds(row.before.split(" ").filter(name => name).map(name => page[name].itemId))
        const log = record(page)
        if (row.on)
            row.on(page)
        row.act(page)
        if (row.log)
            compare(log, row.log)
        else
            compare(log[log.length - 1], row.last)
        compare(page.shared.current?.objectName, row.current)
        compare([page.shared.count, page.shared.empty], [page.shared.items.length, !page.shared.items.length])
        for (const name of ["a", "b", "c", "d", "e"].filter(name => page[name]))
            compare(page[name].selected, page.shared.contains(page[name]))
    }

    function test_boundingRect() {
        const page = makePage()
        const changed = spyOn(page.shared, "boundingRectChanged")
        page.shared.selectIds([page.b.itemId, page.c.itemId])
        compare(page.shared.boundingRect, Qt.rect(0, 0, 60, 100))
        changed.clear()
        page.first.moveItems({ [page.b.itemId]: Qt.point(10, 10), [page.c.itemId]: Qt.point(80, 20) })
        compare(changed.count, 1)
        compare(page.shared.boundingRect, Qt.rect(10, 10, 80, 20))
        page.shared.clear()
        compare(page.shared.boundingRect, Qt.rect(0, 0, 0, 0))
    }

    function test_sharedSelectionGoes() {
        const page = makePage()
        page.shared.selectIds([page.a.itemId, page.d.itemId])
        const own = spyOn(page.first, "selectionChanged")
        page.shared.destroy()
        tryCompare(own, "count", 1)
        verify(!page.a.selected && page.first.selection && page.first.selection !== page.second.selection)
        page.first.selection.select(page.a)
        verify(page.a.selected && page.second.selection.empty)
    }
}
