import QtQuick
import QtQuick.Templates as T
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RMessageBox"

    readonly property Item overlay: T.Overlay.overlay

    /*! A box, and what it signals in `log`. */
    function makeBox(body: string): var {
        return make(`import QtQuick.Templates as T
            Item { property alias box: box; property var log: []
                RMessageBox { id: box; text: 'Really?'; ` + body + `
                    onButtonClicked: button => log.push(button); onAccepted: log.push('accepted')
                    onRejected: log.push('rejected'); onClosed: log.push('closed') } }`)
    }
    function find(item: var, matches: var): var {
        if (matches(item))
            return item
        for (let i = 0; i < item.children.length; ++i) {
            const found = find(item.children[i], matches)
            if (found)
                return found
        }
        return null
    }
    function shown(text: string): var {
        return find(root.overlay, item => item.text === text && item.visible)
    }
    function press(text: string) {
        waitForRendering(root.overlay)
        mouseClick(shown(text))
    }

    function test_answers_data() {
        return [
            { tag: "Ok", keys: [Qt.Key_Return], log: [0x400, "accepted", "closed"] },
            { tag: "dismissed", keys: [Qt.Key_Escape], log: ["rejected", "closed"] },
            { tag: "question", body: "icon: RMessageBox.Question; standardButtons: T.Dialog.Yes | T.Dialog.No", keys: [Qt.Key_Return], log: [0x4000, "accepted", "closed"] },
            { tag: "destructive", body: "icon: RMessageBox.Warning; standardButtons: T.Dialog.Yes | T.Dialog.No", keys: [Qt.Key_Return], log: [0x10000, "rejected", "closed"] },
            { tag: "destructive with Cancel", body: "icon: RMessageBox.Critical; standardButtons: T.Dialog.Ok | T.Dialog.Cancel", keys: [Qt.Key_Return], log: [0x400000, "rejected", "closed"] },
            { tag: "only Ok", body: "icon: RMessageBox.Critical", keys: [Qt.Key_Return], log: [0x400, "accepted", "closed"] },
            { tag: "named", body: "icon: RMessageBox.Warning; standardButtons: T.Dialog.Yes | T.Dialog.No; defaultButton: T.Dialog.Yes", keys: [Qt.Key_Return], log: [0x4000, "accepted", "closed"] },
            { tag: "neither", body: "standardButtons: T.Dialog.Discard", keys: [Qt.Key_Tab, Qt.Key_Return], log: [0x800000, "closed"] },
            { tag: "Help stays", body: "standardButtons: T.Dialog.Help", keys: [Qt.Key_Tab, Qt.Key_Return], log: [], open: true }
        ]
    }
    function test_answers(row) {
        const page = makeBox(row.body ?? "")
        page.box.open()
        verify(page.box.opened)
        for (const key of row.keys)
            keyClick(key)
        compare(page.log.map(String), row.log.map(String))
        compare(page.box.opened, row.open === true)
        page.box.close()
        compare(page.log.pop(), row.log.length > 0 || row.open ? "closed" : undefined)
    }

    function test_oneAtATime() {
        const pages = [makeBox(""), makeBox(""), makeBox("")]
        pages.forEach(page => page.box.open())
        pages[0].box.open()
        compare(pages.map(page => page.box.opened), [true, false, false])
        pages[1].destroy()
        keyClick(Qt.Key_Escape)
        tryVerify(() => pages[2].box.opened)
        keyClick(Qt.Key_Return)
        compare(pages[0].log, ["rejected", "closed"])
        tryVerify(() => !pages[2].box.opened)
    }

    function test_keptAnswer() {
        const body = "dontAskKey: 'mute all'; standardButtons: T.Dialog.Yes | T.Dialog.No"
        const page = makeBox(body)
        page.box.open()
        press("Do not ask again")
        press("Yes")
        const later = makeBox(body)
        later.box.open()
        verify(!later.box.opened)
        compare(later.log.map(String), ["16384", "accepted", "closed"])
        const other = makeBox("dontAskKey: 'other'")
        other.box.open()
        verify(other.box.opened)
        other.box.close()
        compare(other.log, ["closed"])
    }

    function test_texts_data() {
        return [
            { tag: "icon", body: "icon: RMessageBox.Warning" },
            { tag: "no icon", body: "" }
        ]
    }
    function test_texts(row) {
        const page = makeBox((row.body || "icon: RMessageBox.NoIcon") + "; title: 'Title'; informativeText: 'More'; detailedText: 'line 1\\nline 2'")
        page.box.open()
        for (const text of ["Title", "Really?", "More"])
            verify(shown(text).width > 0)
        compare(find(root.overlay, item => item.readOnly === true), null, "details are not made before they are wanted")
        press("Show details")
        const details = find(root.overlay, item => item.readOnly === true)
        compare(details.text, "line 1\nline 2")
        verify(details.height > 0)
        page.box.close()
    }

    function test_goesWhileOpen() {
        const page = makeBox("")
        const next = makeBox("")
        page.box.open()
        next.box.open()
        page.destroy()
        tryVerify(() => next.box.opened)
        next.box.close()
    }
}
