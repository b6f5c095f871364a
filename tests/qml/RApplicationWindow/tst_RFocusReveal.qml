import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RFocusReveal"

    // Six blocks three in a row, then what can have the focus at 100 to 150, then room to scroll.
    readonly property string flow: `Flickable {
        property alias focused: button
        anchors.fill: parent; contentWidth: width; contentHeight: flow.height
        Flow {
            id: flow
            width: parent.width
            Repeater { model: 6; Item { width: 100; height: 50 * unit } }
            RButton { id: button; width: 100; height: 50 }
            Item { width: parent.width; height: 600 }
        }
    }`
    // Its fifth row is at 150, and the first one always at the top.
    readonly property string table: `Flickable {
        property alias focused: cells
        anchors.fill: parent; contentWidth: cells.width; contentHeight: cells.height
        RCellContainer {
            id: cells
            gridProperties: RCellGridProperties { headerRows: 1; rowHeight: 30 * unit; spacing: 0 }
            Repeater { model: 20; RCellText { required property int index; row: index; text: index } }
            currentRow: 5; currentColumn: 0
        }
    }`
    readonly property string fader: "Flickable { property alias focused: level; anchors.fill: parent; contentHeight: 400; RFader { id: level; height: 400; from: 0; to: 100; value: 60 } }"
    readonly property string list: "ListView { property Item focused: this; anchors.fill: parent; cacheBuffer: 0; model: 50; delegate: Item { width: 9; height: 20 } currentIndex: 8 }"

    function test_staysSeen_data() {
        const lower = page => { page.height = 80 }
        const zoomed = factor => page => {
            page.reveal.settled = false
            page.unit = factor
            page.reveal.settled = true
        }
        return [
            { tag: "lower", body: root.flow, act: lower, contentY: 70 },
            { tag: "narrower", body: root.flow, act: page => { page.width = 100 }, contentY: 150 },
            { tag: "scrolled away, lower", body: root.flow, from: 300, act: lower, contentY: 300 },
            { tag: "scrolled away, zoomed", body: root.flow, from: 300, act: zoomed(2), contentY: 200 },
            { tag: "fader longer than its view, lower", body: root.fader, act: lower, contentY: 109 },
            { tag: "row, lower", body: root.list, act: lower, contentY: 100 },
            { tag: "row scrolled away, lower", body: root.list, from: 300, act: lower, contentY: 300 },
            { tag: "cell, lower", body: root.table, act: lower, contentY: 100 },
            { tag: "cell, zoomed below the header", body: root.table, from: 100, act: zoomed(0.5), contentY: 60 },
        ]
    }
    function test_staysSeen(row) {
        const page = make("Item { property alias reveal: reveal; property real unit: 1; property Item view: children[1]; width: 300; height: 200; RFocusReveal { id: reveal }\n" + row.body + "}")
        waitForRendering(page)
        page.view.focused.forceActiveFocus()
        page.view.contentY = row.from ?? 0
        waitForRendering(page)
        row.act(page)
        waitForRendering(page)
        compare(page.view.contentY, row.contentY)
    }
}
