import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RWorksheet"

    function sheetOf(body: string): var {
        return make("RWorksheet { width: 400; height: 300; title: 'Stage'; " + body + " }")
    }

    function type(text: string) {
        for (const letter of text)
            keyClick(letter)
    }

    function test_editedTitle_data() {
        return [
            { tag: "F2", begin: sheet => keyClick(Qt.Key_F2), end: Qt.Key_Return, edited: ["edited hall"] },
            { tag: "Enter", begin: sheet => keyClick(Qt.Key_Enter), end: Qt.Key_Enter, edited: ["edited hall"] },
            { tag: "double click", begin: sheet => mouseDoubleClickSequence(sheet.header, 20, 16), end: Qt.Key_Return, edited: ["edited hall"] },
            { tag: "Esc", begin: sheet => keyClick(Qt.Key_F2), end: Qt.Key_Escape, edited: [] }
        ]
    }
    function test_editedTitle(row) {
        const sheet = sheetOf("")
        const log = logged(sheet, { titleEdited: "edited" })
        sheet.header.forceActiveFocus()
        row.begin(sheet)
        tryVerify(() => sheet.titleEditing)
        type("hall")
        keyClick(row.end)
        verify(!sheet.titleEditing)
        compare(log, row.edited)
        verify(sheet.header.activeFocus)
        compare(sheet.title, row.edited.length > 0 ? "hall" : "Stage")
    }

    function test_boundTitle() {
        const page = make("Item { property string name: 'Stage'; property Item sheet: RWorksheet { parent: page; title: page.name } id: page }")
        page.sheet.header.forceActiveFocus()
        keyClick(Qt.Key_F2)
        type("hall")
        keyClick(Qt.Key_Return)
        compare(page.sheet.title, "hall", "for a moment")
        tryCompare(page.sheet, "title", "Stage")
        page.name = "Foyer"
        compare(page.sheet.title, "Foyer")
    }

    function test_readOnly() {
        const sheet = sheetOf("readOnly: true")
        sheet.header.forceActiveFocus()
        keyClick(Qt.Key_F2)
        mouseDoubleClickSequence(sheet.header, 20, 16)
        sheet.editTitle()
        verify(!sheet.titleEditing)
    }

    function test_workspaceFillsIt() {
        const sheet = sheetOf("RWorkspace { id: work } property Item work: work")
        tryCompare(sheet, "workspace", sheet.work)
        compare([sheet.work.width, sheet.work.height], [400, 268])
        sheet.height = 200
        compare(sheet.work.height, 168)
    }
}
