import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RPendingValue"

    function makeDevice(said: var): var {
        const device = make("QtObject { property var said }")
        device.said = said
        return device
    }

    /*! An item with a value, `inner` with another that `shown` is an alias of, and an edit of each. */
    function makePage(settleTime: int): var {
        const page = make(`Item { id: page
            property real value; property alias shown: inner.level; readonly property QtObject inner: inner
            readonly property var edits: [edit, aliasEdit]
            QtObject { id: inner; property real level }
            RPendingValue { id: edit; target: page; name: "value" }
            RPendingValue { id: aliasEdit; target: page; name: "shown" } }`)
        page.edits.forEach(edit => edit.settleTime = settleTime)
        return page
    }

    function editTo(edit: var, value: var) {
        edit.show(value)
        edit.commit()
    }

    // The edit takes 1 to 2; the device says 3 to an earlier one, then 2, and somebody else sets 4.
    function test_answer_data() {
        const click = item => mouseClick(item, item.width / 2, 8)
        const choose = box => { box.forceActiveFocus(); [Qt.Key_Down, Qt.Key_Down, Qt.Key_Return].forEach(key => keyClick(key)) }
        return [
            { tag: "property", name: "value", make: () => makePage(60000), edit: page => editTo(page.edits[0], 2) },
            { tag: "alias", name: "shown", make: () => makePage(60000), edit: page => editTo(page.edits[1], 2) },
            { tag: "fader", name: "value", body: "RFader { from: 0; to: 10; stepSize: 1; settleTime: 60000; height: 200 }",
                edit: fader => { fader.forceActiveFocus(); keyClick(Qt.Key_Up); fader.focus = false } },
            { tag: "combo box, index", name: "currentIndex", body: "RComboBox { model: ['a', 'b', 'c', 'd', 'e']; settleTime: 60000 }",
                edit: choose },
            { tag: "combo box, value", name: "value", body: "RComboBox { model: ['a', 'b', 'c', 'd']; settleTime: 60000 }",
                edit: choose, said: ["b", "c", "d", "c", "a"] },
            { tag: "number", name: "value", body: "RNumberTextField { stepSize: 1; settleTime: 60000 }",
                edit: field => { field.forceActiveFocus(); keyClick(Qt.Key_Up); field.focus = false } },
            { tag: "handle", name: "xValue", body: "Item { width: 200; height: 200\nRDragHandler { yEnabled: false; stepSize: 1; settleTime: 60000 } }", part: page => page.children[0],
                edit: handle => { handle.forceActiveFocus(); keyClick(Qt.Key_Up); handle.focus = false } },
            { tag: "panel", name: "threshold", body: "RLimiter { width: 300; height: 300; settleTime: 60000 }",
                edit: panel => { const handle = findChild(panel, "threshold"); handle.forceActiveFocus(); keyClick(Qt.Key_Up); keyClick(Qt.Key_Up); handle.focus = false } },
            { tag: "button", name: "selected", body: "RButton { selectable: true }", edit: click, said: [false, true, false, true, false] },
            { tag: "check box", name: "selected", body: "RCheckBox { text: 'On' }", edit: click, said: [false, true, false, true, false] },
            { tag: "pane", name: "collapsed", body: "RPane { title: 'Zone'; collapsible: true; width: 200 }", edit: click, said: [false, true, false, true, false] }
        ]
    }
    function test_answer(row) {
        const made = row.make ? row.make() : make(row.body)
        const item = row.part ? row.part(made) : made
        const [begin, edited, stale, answer, other] = row.said ?? [1, 2, 3, 2, 4]
        const device = makeDevice(begin)
        item[row.name] = Qt.binding(() => device.said)
        waitForRendering(root)
        row.edit(item)
        compare(item[row.name], edited, "shown at once")
        device.said = stale
        compare(item[row.name], edited, "an answer to an earlier edit waits")
        device.said = answer
        compare(item[row.name], edited)
        device.said = other
        compare(item[row.name], other, "over with the answer")
    }

    function test_end_data() {
        const bound = (page, device) => page.value = Qt.binding(() => device.said)
        return [
            { tag: "refused", bind: bound, value: 1 },
            { tag: "refused, another said", bind: bound, act: (page, device) => device.said = 5, value: 5 },
            { tag: "rounded", bind: bound, act: (page, device) => device.said = 2.5, value: 2.5 },
            { tag: "without a binding", bind: page => page.value = 1, value: 2 },
            { tag: "assigned meanwhile", bind: page => page.value = 1, act: page => page.value = 7, value: 7 },
            { tag: "another edit of it", bind: bound, act: page => { page.other = createTemporaryObject(otherEdit, root, { target: page }); editTo(page.other, 8) }, value: 1 }
        ]
    }
    function test_end(row) {
        const page = make("Item { id: page; property var other; property real value; property alias edit: edit\nRPendingValue { id: edit; target: page; name: 'value'; settleTime: 20 } }")
        const device = makeDevice(1)
        row.bind(page, device)
        editTo(page.edit, 2)
        if (row.act)
            row.act(page, device)
        compare(page.value, page.other ? 8 : 2)
        compare(page.edit.active, !page.other)
        tryCompare(page.other ?? page.edit, "active", false)
        compare(page.value, row.value)
    }

    // A page writes the edit to a device that answers late, and shows it meanwhile.
    function test_echoIsNoAnswer() {
        const page = makePage(60000)
        const edit = page.edits[0]
        const device = makeDevice(1)
        page.value = Qt.binding(() => device.said)
        for (const value of [2, 3]) {
            edit.show(value)
            device.said = value
        }
        edit.commit()
        compare(edit.active, true)
        device.said = 2
        compare(page.value, 3, "an answer to the edit before")
        device.said = 3
        compare(edit.active, false)
    }

    function test_goesDuringAnEdit() {
        const page = makePage(60000)
        const device = makeDevice(1)
        const edit = createTemporaryObject(otherEdit, root, { target: page })
        page.value = Qt.binding(() => device.said)
        edit.show(2)
        device.said = 3
        edit.destroy()
        tryCompare(page, "value", 3)
        device.said = 4
        compare(page.value, 4)
    }

    function test_nothingToEdit() {
        const page = make("Item { property alias edit: edit\nRPendingValue { id: edit; name: 'none' } }")
        editTo(page.edit, 2)
        page.edit.target = page
        editTo(page.edit, 2)
        page.edit.begin()
        compare(page.edit.active, false)
    }

    Component {
        id: otherEdit
        RPendingValue {
            name: "value"
            settleTime: 20
        }
    }
}
