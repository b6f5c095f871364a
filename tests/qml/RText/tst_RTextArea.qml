import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RTextArea"

    function makePage(body: string): var {
        const page = make(`FocusScope {
            property string device: "Hall"
            property alias area: inner
            property alias other: neighbour
            focus: true
            RTextArea {
                id: inner
                value: parent.device
                settleTime: 20
                onValueEdited: (value) => parent.device = value
                ${body}
            }
            TextInput { id: neighbour; y: 120; width: 50; activeFocusOnTab: true }
        }`)
        page.forceActiveFocus()
        page.area.textArea.forceActiveFocus(Qt.TabFocusReason)
        page.area.textArea.cursorPosition = page.area.text.length
        return page
    }

    function test_keys_data() {
        return [
            { tag: "Enter makes a line", key: Qt.Key_Return, text: "Hallx\n", device: "Hall" },
            { tag: "Ctrl+Enter enters", key: Qt.Key_Return, modifiers: Qt.ControlModifier, text: "Hallx", device: "Hallx" },
            { tag: "Esc", key: Qt.Key_Escape, text: "Hall", device: "Hall" },
            { tag: "Tab leaves", key: Qt.Key_Tab, text: "Hallx", device: "Hallx", leaves: true },
            { tag: "Tab types", body: "tabChangesFocus: false", key: Qt.Key_Tab, text: "Hallx\t", device: "Hall" },
        ]
    }
    function test_keys(data) {
        const page = makePage(data.body ?? "")
        keyClick("x")
        compare([page.area.edited, page.device], [true, "Hall"])
        keyClick(data.key, data.modifiers ?? Qt.NoModifier)
        compare([page.area.text, page.device, page.other.activeFocus], [data.text, data.device, data.leaves ?? false])
        if (data.device !== "Hall") {
            page.device = "Foyer"
            tryCompare(page.area, "text", "Foyer", 2000, "the page's binding lives on")
        }
    }

    function test_linesAreMarkedNeverRefused() {
        const page = makePage("maximumLines: 2")
        for (let i = 0; i < 2; ++i)
            keyClick(Qt.Key_Return)
        keyClick("x")
        compare([page.area.text, page.area.invalidText], ["Hall\n\nx", "At most 2 lines"])
        const rejected = spyOn(page.area, "rejected")
        keyClick(Qt.Key_Return, Qt.ControlModifier)
        compare([rejected.count, page.area.edited, page.device], [1, true, "Hall"])
    }

    function test_mixed() {
        const page = makePage("consistent: false")
        compare([page.area.text, page.area.edited], ["", false])
    }

    function test_longTextScrolls() {
        const page = makePage("")
        page.device = "line\n".repeat(500)
        compare(page.area.text.length, 2500)
        page.area.textArea.cursorPosition = 2500
        verify(page.area.contentItem.contentY > 0)
    }
}
