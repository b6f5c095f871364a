import QtQuick
import QtQml.Models
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RCellInView"

    // 200 names in a view that uses its delegates again.
    function makeView(): var {
        const page = make(`FocusScope {
            property alias view: table
            property alias before: first
            property alias after: last
            property var entered: []
            width: 300; height: 300
            TextInput { id: first; width: 50; activeFocusOnTab: true }
            TableView {
                id: table
                y: 20; width: 300; height: 200
                activeFocusOnTab: true
                model: ListModel { Component.onCompleted: { for (let i = 0; i < 200; ++i) append({ name: "name " + i }) } }
                selectionModel: ItemSelectionModel { model: table.model }
                delegate: RCellTextField {
                    required row
                    required column
                    required current
                    gridProperties: raster
                    required property string name
                    text: name
                    onValueEdited: value => entered.push(row + " " + value)
                }
                RCellGridProperties { id: raster; rowHeight: 40; columnWidths: [250] }
            }
            TextInput { id: last; y: 250; width: 50; activeFocusOnTab: true }
        }`)
        waitForRendering(page)
        return page
    }
    function cellAt(view: var, row: int): var {
        return view.itemAtCell(Qt.point(0, row))
    }
    function currentRow(view: var): int {
        return view.selectionModel.currentIndex.row
    }

    function test_size() {
        const view = makeView().view
        compare([cellAt(view, 0).width, cellAt(view, 0).height], [250, 40])
        const cell = make("RCellText { text: 'alone' }")
        compare([cell.width, cell.height], [144 * RThemeValues.unit, 32 * RThemeValues.unit])
    }

    function test_currentFollowsFocusAndKeys() {
        const page = makeView()
        mouseClick(cellAt(page.view, 2))
        compare([currentRow(page.view), cellAt(page.view, 2).current], [2, true])
        keyClick(Qt.Key_Escape)
        keyClick(Qt.Key_Down)
        compare([currentRow(page.view), cellAt(page.view, 3).activeFocus], [3, true])
        keyClick(Qt.Key_X)
        keyClick(Qt.Key_Return)
        compare(page.entered, ["3 x"])
        verify(cellAt(page.view, 3).activeFocus && !cellAt(page.view, 3).editing)
        keyClick(Qt.Key_Tab)
        verify(page.after.activeFocus)
        keyClick(Qt.Key_Backtab)
        verify(cellAt(page.view, 3).activeFocus)
        keyClick(Qt.Key_Backtab)
        verify(page.before.activeFocus)
    }

    function test_oneStopWithoutACurrentCell() {
        const page = makeView()
        page.before.forceActiveFocus()
        keyClick(Qt.Key_Tab)
        compare([currentRow(page.view), cellAt(page.view, 0).activeFocus], [0, true])
        keyClick(Qt.Key_Tab)
        verify(page.after.activeFocus)
        page.view.model.clear()
        keyClick(Qt.Key_Backtab)
        verify(page.view.activeFocus)
        keyClick(Qt.Key_Backtab)
        verify(page.before.activeFocus)
    }

    function test_cannotHoldWhatItIsIn() {
        const cell = make("RCellText {}")
        const own = cell.control
        for (const other of [cell, cell.parent]) {
            cell.control = other
            compare(cell.control, own)
        }
    }

    function test_scrolledAway() {
        const page = makeView()
        mouseClick(cellAt(page.view, 1))
        cellAt(page.view, 1).control.selectAll()
        keyClick(Qt.Key_Y)
        page.view.contentY = 4000
        waitForRendering(page.view)
        compare(page.entered, ["1 y"], "entered where it was typed")
        for (let row = 100; row < 104; ++row)
            verify(!cellAt(page.view, row).editing && !cellAt(page.view, row).activeFocus)
        keyClick(Qt.Key_Down)
        compare(currentRow(page.view), 2)
        tryVerify(() => cellAt(page.view, 2) && cellAt(page.view, 2).activeFocus)
    }
}
