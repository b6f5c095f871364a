import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RViewContainer"

    /*! How many views of each key there are now. */
    property var alive: ({})

    function count(key: string, by: int) {
        root.alive[key] = (root.alive[key] ?? 0) + by
    }

    // qmllint disable unqualified
    Component {
        id: firstView
        Item {
            property alias field: field

            objectName: "first"
            Component.onCompleted: root.count("first", 1)
            Component.onDestruction: root.count("first", -1)

            RButton {
                text: "Before"
            }
            RTextField {
                id: field
                y: 40
                label: "Name"
            }
        }
    }
    Component {
        id: secondView
        RButton {
            text: "Second"
            implicitWidth: 321
            Component.onCompleted: root.count("second", 1)
            Component.onDestruction: root.count("second", -1)
        }
    }
    // qmllint enable unqualified
    Component {
        id: noItem
        QtObject {}
    }

    readonly property var entries: [
        { key: "first", title: "First page", component: firstView },
        { key: "second", title: "Second page", component: secondView, keepAlive: true },
        { key: "file", source: "View.qml" },
        { key: "missing", source: "None.qml" },
        { key: "broken", source: "qrc:/style/tamble.dark.style" },
        { key: "object", component: noItem },
        { key: "empty" }
    ]

    /*! A container and what it signals. Views are loaded at once unless `body` says otherwise. */
    function makeContainer(body: var): var {
        root.alive = {}
        const container = createTemporaryObject(containerComponent, root)
        verify(container)
        for (const name in body)
            container[name] = body[name]
        container.views = root.entries
        return container
    }
    Component {
        id: containerComponent
        RViewContainer {
            property var log: []

            width: 300
            height: 200
            asynchronous: false
            animated: false
            onViewShown: key => log.push(key)
            onViewFailed: (key, error) => log.push(key + ": " + error)
        }
    }

    function test_first() {
        const container = makeContainer({})
        compare([container.currentKey, container.currentTitle, container.currentItem.objectName], ["first", "First page", "first"])
        compare([container.currentItem.width, container.currentItem.height], [300, 200])
        compare([container.history, container.log], [[], ["first"]])
        container.width = 250
        compare(container.currentItem.width, 250)
        container.show("second")
        compare(container.implicitWidth, 321)
    }

    function test_startsElsewhere() {
        compare(makeContainer({ currentKey: "second" }).currentKey, "second")
        const container = makeContainer({ currentKey: "unknown" })
        compare(container.currentKey, "first")
        compare(container.log.length, 2)
    }

    function test_failures_data() {
        return [
            { tag: "unknown", error: /no view of this name/ },
            { tag: "missing", error: /None.qml.*No such file/ },
            { tag: "broken", error: /tamble.dark.style:\d+/ },
            { tag: "object", error: /not an item/ },
            { tag: "empty", error: /neither a component nor a source/ }
        ]
    }
    function test_failures(row) {
        for (const asynchronous of [false, true]) {
            const container = makeContainer({})
            container.asynchronous = asynchronous
            container.log = []
            container.show(row.tag)
            tryCompare(container.log, "length", 1)
            verify(row.error.test(container.log[0]), container.log[0])
            verify(container.log[0].startsWith(row.tag + ": "))
            compare([container.currentKey, container.currentItem.objectName, container.busy], ["first", "first", false])
        }
    }

    function test_file() {
        const container = makeContainer({ asynchronous: true })
        tryCompare(container, "currentKey", "first")
        container.show("file")
        verify(container.busy)
        compare(container.currentKey, "first")
        tryCompare(container, "currentKey", "file")
        compare([container.busy, container.currentItem.where], [false, "a file"])
    }

    function test_anotherOneWhileLoading() {
        const container = makeContainer({ asynchronous: true })
        tryCompare(container, "currentKey", "first")
        for (const key of ["file", "second", "file", "first"])
            container.show(key)
        verify(!container.busy, "back where it was")
        container.show("file")
        container.show("second")
        tryCompare(container, "currentKey", "second")
        wait(50)
        compare([container.log, container.history], [["first", "second"], ["first"]])
    }

    function test_keptAndDropped() {
        const container = makeContainer({})
        container.show("second")
        const kept = container.currentItem
        container.show("first")
        tryVerify(() => root.alive.first === 1)
        compare([kept.visible, root.alive.second], [false, 1])
        container.show("second")
        verify(container.currentItem === kept && kept.visible)
        tryVerify(() => root.alive.first === 0)
        container.unload("second")
        wait(0)
        compare(root.alive.second, 1, "shown")
        container.show("first")
        container.unload("second")
        tryVerify(() => root.alive.second === 0)
    }

    function test_history() {
        const container = makeContainer({})
        container.back()
        compare(container.currentKey, "first")
        for (const key of ["second", "file", "first"])
            container.show(key)
        compare(container.history, ["first", "second", "file"])
        container.back()
        compare([container.currentKey, container.history], ["file", ["first", "second"]])
        container.views = root.entries.filter(entry => entry.key !== "second")
        container.back()
        compare([container.currentKey, container.history], ["first", []], "over one that is not there any more")
        for (let i = 0; i < 150; ++i)
            container.show(i % 2 ? "first" : "file")
        compare(container.history.length, 100)
    }

    function test_guard_data() {
        return [
            { tag: "false", guard: key => false, shown: "first" },
            { tag: "true", guard: key => true, shown: "second" },
            { tag: "nothing", guard: key => {}, shown: "second" },
            { tag: "null", guard: null, shown: "second" },
            { tag: "no function", guard: 5, shown: "second" },
            { tag: "throws", guard: key => { throw new Error("unsaved") }, shown: "first", warning: /guard: Error: unsaved/ }
        ]
    }
    function test_guard(row) {
        const container = makeContainer({})
        container.guard = row.guard
        if (row.warning)
            ignoreWarning(row.warning)
        container.show("second")
        compare(container.currentKey, row.shown)
    }
    function test_guardThatLeadsElsewhere() {
        const container = makeContainer({})
        container.guard = key => {
            container.guard = null
            container.show("file")
            return true
        }
        container.show("second")
        compare(container.currentKey, "file")
    }

    function test_focus() {
        const container = makeContainer({})
        const outside = createTemporaryQmlObject("import TambleClient.Control 1.0; RButton { y: 250; text: 'x' }", root)
        outside.forceActiveFocus()
        container.show("second")
        verify(outside.activeFocus, "which was not in the container")
        container.views = root.entries.map(entry => Object.assign({}, entry, { keepAlive: true }))
        container.show("first")
        container.currentItem.field.forceActiveFocus()
        const field = container.currentItem.field
        container.show("second")
        verify(container.currentItem.activeFocus)
        container.show("first")
        verify(field.activeFocus, "it had it before")
        container.show("file")
        verify(container.activeFocus)
    }

    function test_fade() {
        const container = makeContainer({ animated: true })
        const first = container.currentItem
        container.show("second")
        const host = container.currentItem.parent
        verify(first.visible && host.opacity < 1)
        tryCompare(host, "opacity", 1)
        tryVerify(() => root.alive.first === 0)
        container.show("first")
        container.show("second")
        container.show("first")
        compare([container.currentKey, root.alive.first], ["first", 1], "the one that was leaving")
        tryCompare(container.currentItem.parent, "opacity", 1)
        verify(container.currentItem.visible)
    }

    function test_leavingViewCannotBeUsed() {
        const container = makeContainer({ animated: true })
        container.views = [{ key: "a", component: secondView }, { key: "b", component: firstView }]
        tryCompare(container, "currentKey", "a")
        const spy = spyOn(container.currentItem, "clicked")
        container.show("b")
        mouseClick(container, 280, 180)
        compare(spy.count, 0)
    }

    function test_otherViews() {
        const container = makeContainer({})
        const item = container.currentItem
        container.views = root.entries.map(entry => Object.assign({}, entry, { title: "Other" }))
        verify(container.currentItem === item, "made in the same way")
        compare(container.currentTitle, "Other")
        container.views = [{ key: "first", component: secondView }, { title: "no key" }, null, 5]
        compare([container.currentKey, container.currentItem.text], ["first", "Second"])
        container.views = [{ key: "file", source: "View.qml" }]
        compare(container.currentKey, "file")
        container.views = null
        compare([container.currentKey, container.currentItem], ["", null])
        container.show("first")
        container.views = root.entries
        compare(container.currentKey, "first")
    }

    /*! What a page does when it is told something, at once and while views load and fade. */
    function test_handlers_data() {
        return [
            { tag: "no views", action: container => container.views = [] },
            { tag: "other views", action: container => container.views = [{ key: "second", component: firstView }] },
            { tag: "another view", action: container => container.show("file") },
            { tag: "back", action: container => container.back() },
            { tag: "unloaded", action: container => container.unload("first") },
            { tag: "container destroyed", action: container => container.destroy() }
        ]
    }
    function test_handlers(row) {
        for (const asynchronous of [false, true]) {
            for (const name of ["viewShown", "viewFailed", "currentKeyChanged", "currentItemChanged", "busyChanged", "historyChanged", "viewsChanged"]) {
                const container = makeContainer({ asynchronous: asynchronous, animated: true })
                let calls = 0
                container[name].connect(() => {
                    if (++calls < 5)
                        row.action(container)
                })
                container.show("second")
                container.show("missing")
                wait(20)
                container?.show("first")
                wait(0)
            }
        }
    }

    function test_destroyedWhileLoading() {
        for (const key of ["file", "second", "missing"]) {
            const container = makeContainer({ asynchronous: true })
            tryCompare(container, "currentKey", "first")
            container.show(key)
            container.destroy()
            wait(20)
        }
        compare(root.alive.first, 0)
    }

    function test_blur() {
        const container = makeContainer({ asynchronous: true, blurWhenBusy: true })
        tryCompare(container, "currentKey", "first")
        const host = container.currentItem.parent
        const children = host.children.length
        container.show("file")
        compare(host.children.length, children + 2, "the blur, and what keeps presses away")
        container.show("first")
        wait(0)
        compare(host.children.length, children + 1)
        mouseClick(container, 50, 55)
        verify(container.currentItem.field.activeFocus)
    }
}
