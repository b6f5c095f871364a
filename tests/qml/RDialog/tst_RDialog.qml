import QtQuick
import QtQuick.Templates as T
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RDialog"

    property int made: 0

    /*! A closed dialog with a field that takes 5 to 9, and what both signal in `log`. */
    function makeDialog(body: string): var {
        return make(`import QtQuick.Templates as T
            Item { property alias dialog: dialog; property alias field: field; property var log: []
                RDialog { id: dialog; title: 'Name'; standardButtons: T.Dialog.Ok | T.Dialog.Cancel
                    onAccepted: log.push('accepted'); onRejected: log.push('rejected'); onApplied: log.push('applied')
                    Column { width: parent.width
                        RTextField { id: field; text: '6'; validator: RTextFieldIntValidator { bottom: 5; top: 9 }
                            onValueEdited: value => log.push('entered ' + value) } }
                    ` + body + "} }")
    }
    function openedDialog(body: var): var {
        const page = makeDialog(body ?? "")
        page.dialog.open()
        tryVerify(() => page.dialog.opened)
        waitForRendering(page.dialog.contentItem) // which gives the buttons their places
        return page
    }
    function button(item: var, text: string): var {
        if (item.text === text && item.clicked)
            return item
        for (let i = 0; i < item.children.length; ++i) {
            const found = button(item.children[i], text)
            if (found)
                return found
        }
        return null
    }
    function press(page: var, text: string) {
        mouseClick(button(page.dialog.contentItem, text))
    }

    function test_size_data() {
        return [
            { tag: "least", window: [1000, 600], content: "Item {}", size: [400, 120] },
            { tag: "content", window: [1000, 600], content: "Item { implicitWidth: 700; implicitHeight: 100 }", size: [732, 220] },
            { tag: "greatest", window: [1000, 600], content: "Item { implicitWidth: 2000; implicitHeight: 2000 }", size: [900, 540] },
            { tag: "narrow window", window: [300, 200], content: "Item { implicitWidth: 700; implicitHeight: 2000 }", size: [270, 180] },
            { tag: "text that wraps", window: [1000, 600], content: "RText { width: parent.width; wrapMode: Text.Wrap; text: 'many words '.repeat(200) }", width: 400 },
            { tag: "one that is hidden", window: [1000, 600], content: "Item { visible: false; implicitWidth: 700 }", size: [400, 120] }
        ]
    }
    function test_size(row) {
        const window = make(`import QtQuick.Templates as T
            Window { id: window; property alias dialog: dialog; width: ${row.window[0]}; height: ${row.window[1]}; visible: true
                RDialog { id: dialog; standardButtons: T.Dialog.Ok; ${row.content} } }`)
        waitForRendering(window.contentItem)
        window.dialog.open()
        tryVerify(() => window.dialog.opened)
        if (row.size)
            compare([window.dialog.width, window.dialog.height], row.size)
        else
            compare(window.dialog.width, row.width)
        compare(window.dialog.x, Math.round((row.window[0] - window.dialog.width) / 2))

        window.width = 240
        window.height = 160
        tryCompare(window.dialog, "width", 216)
        verify(window.dialog.height <= 144)
        verify(window.dialog.x >= 0 && window.dialog.x + window.dialog.width <= 240)
        verify(window.dialog.y >= 0 && window.dialog.y + window.dialog.height <= 160)
    }

    function test_nothingInsideBeforeItOpens() {
        root.made = 0
        const dialog = make("import QtQuick.Templates as T\nRDialog { standardButtons: T.Dialog.Ok; Item { Component.onCompleted: root.made += 1 } buttons: RButton { Component.onCompleted: root.made += 10 } }")
        compare(root.made, 0)
        compare(dialog.body.children.length, 0)
        for (let i = 0; i < 2; ++i) {
            dialog.open()
            tryVerify(() => dialog.opened)
            compare(root.made, 11)
            dialog.close()
        }
    }

    /*! Keys in the open dialog, and what follows. */
    function test_keys_data() {
        return [
            { tag: "Enter", keys: ["Return"], log: ["accepted"] },
            { tag: "typed text first", keys: ["7", "Return"], log: ["entered 7"], open: true },
            { tag: "and then the dialog", keys: ["7", "Return", "Return"], log: ["entered 7", "accepted"] },
            { tag: "refused text", keys: ["2", "Return", "Return"], log: [], open: true },
            { tag: "Esc", keys: ["Escape"], log: ["rejected"] },
            { tag: "Esc takes back first", keys: ["7", "Escape", "Escape"], log: ["rejected"] },
            { tag: "Enter on Cancel", body: "Component.onCompleted: standardButtons = T.Dialog.Cancel", keys: ["Tab", "Return"], log: ["rejected"] },
            { tag: "other default", body: "defaultButton: T.Dialog.Cancel", keys: ["Return"], log: ["rejected"] },
            { tag: "no button", body: "Component.onCompleted: standardButtons = 0", keys: ["Return"], log: [], open: true },
            { tag: "not closable", body: "closable: false", keys: ["Escape"], log: [], open: true },
            { tag: "busy", body: "busy: true", keys: ["Return", "Escape"], log: [], open: true },
            { tag: "check box", body: "initialFocus: check; RCheckBox { id: check }", keys: ["Return"], log: ["accepted"] }
        ]
    }
    function test_keys(row) {
        const page = openedDialog(row.body)
        for (const key of row.keys)
            keyClick(key.length === 1 ? key : Qt["Key_" + key])
        compare(page.log, row.log)
        compare(page.dialog.visible, row.open === true)
    }

    function test_unacceptableTextHoldsTheDialog() {
        const page = openedDialog()
        keyClick("2")
        press(page, "OK")
        compare(page.log, [])
        verify(page.field.activeFocus)
        compare(page.field.text, "2")
        press(page, "Cancel")
        compare(page.log, ["rejected"])
        compare(page.field.text, "6", "nothing waits in a closed dialog")
    }

    function test_typedTextIsEnteredByTheButton() {
        const page = openedDialog("Component.onCompleted: standardButtons = T.Dialog.Ok | T.Dialog.Apply")
        keyClick("7")
        press(page, "Apply")
        compare(page.log, ["entered 7", "applied"])
        keyClick(Qt.Key_Backspace)
        keyClick("8")
        press(page, "OK")
        compare(page.log.slice(2).pop(), "accepted")
        compare(page.log.length, 4)
    }

    function test_focusStaysInsideAndComesBack() {
        const outside = make("RButton { text: 'Open' }")
        outside.forceActiveFocus()
        const page = openedDialog("buttons: RButton { text: 'More' }")
        verify(page.field.activeFocus)
        for (let i = 0; i < 7; ++i) {
            keyClick(Qt.Key_Tab)
            verify(page.dialog.activeFocus)
        }
        keyClick(Qt.Key_Escape)
        tryVerify(() => outside.activeFocus)
        // The key that closes is not heard by the button that gets the focus.
        const clicks = spyOn(outside, "clicked")
        outside.enterClicks = true
        page.dialog.open()
        keyClick(Qt.Key_Return)
        verify(outside.activeFocus)
        compare(clicks.count, 0)
    }

    function test_defaultButtonIsMarkedWhileNothingElseHasTheFocus() {
        const dialog = make("import QtQuick.Templates as T\nRDialog { standardButtons: T.Dialog.Ok | T.Dialog.Cancel; Item {} }")
        dialog.open()
        tryVerify(() => dialog.opened)
        const marked = () => ["OK", "Cancel"].filter(text => button(dialog.contentItem, text).RStyleSet.stateHelper.focus)
        compare(marked(), ["OK"])
        dialog.defaultButton = dialog.standardButton(0x400000) ? 0x400000 : 0
        compare(marked(), ["Cancel"])
        keyClick(Qt.Key_Tab)
        compare(marked().length, 1)
        verify(button(dialog.contentItem, marked()[0]).activeFocus)
    }

    function test_buttonsStandAtTheMargin() {
        const page = openedDialog()
        const ends = ["OK", "Cancel"].map(text => button(page.dialog.contentItem, text)).map(found => found.mapToItem(page.dialog.contentItem, found.width, 0).x)
        compare(ends, [page.dialog.width - 16 - 96 - 8, page.dialog.width - 16])
    }

    function test_longBodyHasABar() {
        const dialog = make("RDialog { Item { implicitHeight: 900 } }")
        dialog.open()
        tryVerify(() => dialog.opened)
        const view = dialog.contentItem.view
        verify(view.interactive && view.T.ScrollBar.vertical.visible)
    }

    function test_header_data() {
        return [{ tag: "mouse" }, { tag: "touch", touch: true }]
    }
    function test_header(row) {
        const page = openedDialog()
        const header = button(page.dialog.contentItem, "Close").parent
        const place = Qt.point(page.dialog.x, page.dialog.y)
        if (row.touch) {
            touchEvent(header).press(0, header, 40, 20).commit().move(0, header, 40, 40).commit().move(0, header, 40, 400).commit().release(0, header, 40, 400).commit()
        } else {
            mousePress(header, 40, 20)
            mouseMove(header, 40, 40)
            mouseMove(header, 40, 400)
            mouseRelease(header, 40, 400)
        }
        compare(page.dialog.y, root.height - page.dialog.height - page.dialog.margins, "within the window")
        page.dialog.moveBy(Qt.point(NaN, Infinity))
        compare(page.dialog.x, place.x)
        mouseClick(button(header, "Close"))
        compare(page.log, ["rejected"])
        page.dialog.open()
        compare(page.dialog.y, place.y, "in the middle again")
        page.dialog.width = Infinity
        verify(isFinite(page.dialog.width))
    }

    function test_themes() {
        const page = openedDialog()
        compare(page.dialog.ssBackground, "#282828")
        compare([page.dialog.ssBorderColor, page.dialog.ssHeaderBackground, page.dialog.ssHeaderColor].map(String), ["#505050", "#191919", "#efefef"])
        const changes = spyOn(page.dialog, "ssHeaderColorChanged")
        root.sheet = "light"
        compare(page.dialog.ssBackground, "#dcdcdc")
        compare(page.dialog.contentItem.color, "#dcdcdc")
        verify(changes.count > 0)
        page.dialog.ssBackground = "red"
        compare(page.dialog.contentItem.color, "#ff0000")
    }

    function test_mirrored() {
        const page = make("import QtQuick.Templates as T\nItem { LayoutMirroring.enabled: true; property alias dialog: dialog; RDialog { id: dialog; title: 'Name'; standardButtons: T.Dialog.Ok } }")
        page.dialog.open()
        verify(button(page.dialog.contentItem, "Close").x < 10)
        verify(button(page.dialog.contentItem, "OK").mapToItem(page.dialog.contentItem, 0, 0).x < 20)
    }

    function test_whatFitsStaysUnderThePointer() {
        const page = openedDialog("RButton { id: last; y: 60; text: 'Last'; onClicked: log.push('clicked') } property alias last: last")
        mouseClick(page.dialog.last)
        compare(page.log, ["clicked"])
    }

    function test_focusedFieldIsInView() {
        const page = openedDialog("Item { id: room; y: 900; width: 100; implicitHeight: 40; RTextField { id: last } } property alias last: last")
        page.dialog.last.forceActiveFocus()
        const place = page.dialog.last.mapToItem(page.dialog.contentItem, 0, 0)
        verify(place.y > 0 && place.y + 32 < page.dialog.height)
    }
}
