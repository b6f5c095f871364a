import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RRepeater"

    function names(repeater: var): string {
        return Array.from(repeater.items).map(item => item.name).join("")
    }

    function test_followsTheModel() {
        const page = make(`Item {
            property alias list: rows
            property alias repeater: made
            property int changes: 0
            property var heard: made.items
            onHeardChanged: ++changes
            ListModel { id: rows; ListElement { name: 'a' } ListElement { name: 'b' } ListElement { name: 'c' } }
            RRepeater { id: made; model: rows; Item { required property string name } } }`)
        compare(names(page.repeater), "abc")
        const steps = [
            [() => page.list.append({ name: "d" }), "abcd"],
            [() => page.list.move(3, 0, 1), "dabc"],
            [() => page.list.remove(1), "dbc"],
            [() => page.list.set(0, { name: "e" }), "ebc"],
            [() => page.list.clear(), ""],
            [() => page.list.append({ name: "f" }), "f"],
            [() => page.repeater.model = null, ""],
            [() => page.repeater.model = page.list, "f"]
        ]
        for (const [act, expected] of steps) {
            const before = page.changes
            act()
            compare(names(page.repeater), expected)
            verify(page.changes > before || expected === "ebc")
        }
        compare([page.repeater.objectAt(0).name, page.repeater.objectAt(1), page.repeater.objectAt(-1)], ["f", null, null])
    }

    function test_filtersOfACurve() {
        const page = make(`RBodeplot { width: 200; height: 100; property alias curve: inner; property alias list: rows
            ListModel { id: rows; ListElement { f: 100 } ListElement { f: 1000 } }
            RRepeater { id: filters; model: rows; RBodeplotEqFilter { required property real f; freq: f } }
            RBodeplotCurve { id: inner; calculationItemsReference: filters.items } }`)
        compare(page.curve.calculationItemsReference.length, 2)
        page.list.append({ f: 5000 })
        compare(page.curve.calculationItemsReference.length, 3)
    }
}
