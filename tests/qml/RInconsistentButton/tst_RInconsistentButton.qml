import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RInconsistentButton"
    height: 400

    property var log: []

    readonly property string button: "RInconsistentButton { text: 'Mute'"
    readonly property string powerSwitch: "RInconsistentButtonSwitch { label: 'Power'"

    /*! What one of the declarations above makes with more properties, mixed unless these say otherwise. */
    function makeMixed(declaration: string, properties: var): var {
        const button = make(declaration + "; x: 150; y: 150; consistent: false }")
        root.log = logged(button, { clickedOn: "on", clickedOff: "off", selectionEdited: "edited" })
        Object.assign(button, properties)
        button.forceActiveFocus()
        return button
    }
    function openedPopup(button: Item): var {
        tryVerify(() => button.popup && button.popup.opened)
        return button.popup
    }

    function test_consistentButtonsAskNothing_data() {
        return [
            { tag: "button", declaration: root.button },
            { tag: "switch", declaration: root.powerSwitch }
        ]
    }
    function test_consistentButtonsAskNothing(row) {
        const button = makeMixed(row.declaration, { consistent: true })
        mouseClick(button)
        button.selected = true
        mouseClick(button)
        compare(root.log, ["on", "off"])
        compare(button.popup, null, "no popup is made before it is needed")
    }

    function pressKey(key: int) {
        wait(2) // a press in the millisecond of a release is a repetition
        keyClick(key)
    }

    /*! Keys after the click that opens the question; what the button then signals. */
    function test_keys_data() {
        return [
            { tag: "Enter", keys: [Qt.Key_Return], log: ["on"] },
            { tag: "Space", keys: [Qt.Key_Space], log: ["on"] },
            { tag: "Down", keys: [Qt.Key_Down, Qt.Key_Enter], log: ["off"] },
            { tag: "Up", keys: [Qt.Key_Up, Qt.Key_Enter], log: ["off"] },
            { tag: "there and back", keys: [Qt.Key_Down, Qt.Key_Up, Qt.Key_Enter], log: ["on"] },
            { tag: "Tab", keys: [Qt.Key_Tab, Qt.Key_Tab, Qt.Key_Tab, Qt.Key_Enter], log: ["off"] },
            { tag: "side by side", keys: [Qt.Key_Right, Qt.Key_Enter], horizontal: true, log: ["off"] },
            { tag: "Esc", keys: [Qt.Key_Escape], log: [] }
        ]
    }
    function test_keys(row) {
        for (const declaration of [root.button, root.powerSwitch]) {
            const button = makeMixed(declaration, { horizontalText: row.horizontal ?? false })
            pressKey(Qt.Key_Space)
            const popup = openedPopup(button)
            row.keys.forEach(pressKey)
            tryVerify(() => !popup.visible)
            compare(root.log, row.log)
            tryVerify(() => button.activeFocus)
            verify(!popup.visible, "the key that chose has not opened it again")
        }
    }

    function test_place_data() {
        return [
            { tag: "below", x: 0, y: 32 },
            { tag: "above", properties: { openAbove: true }, x: 0, y: -67 },
            { tag: "left", properties: { openLeft: true }, x: -128, y: 0 },
            { tag: "mirrored", properties: { openLeft: true, x: 100 }, mirrored: true, x: 128, y: 0 },
            { tag: "no room below", properties: { y: 350 }, x: 0, y: -67 },
            { tag: "side by side", properties: { horizontalText: true, openAbove: true }, x: 0, y: -34 }
        ]
    }
    function test_place(row) {
        const button = makeMixed(root.button, row.properties ?? {})
        button.LayoutMirroring.enabled = row.mirrored ?? false
        mouseClick(button)
        const popup = openedPopup(button)
        compare([popup.x, popup.y, popup.width], [row.x, row.y, 144])
        mouseClick(button)
        tryVerify(() => !popup.visible, 1000, "a second click closes it")
    }

    function test_widthOfTheSwitch() {
        const button = makeMixed(root.powerSwitch, {})
        mouseClick(button)
        compare(openedPopup(button).width, 72)
    }

    function test_questionsEnd_data() {
        return [
            { tag: "the devices agree", property: "consistent", value: true },
            { tag: "locked", property: "enabled", value: false },
            { tag: "hidden", property: "visible", value: false }
        ]
    }
    function test_questionsEnd(row) {
        for (const declaration of [root.button, root.powerSwitch]) {
            const button = makeMixed(declaration, {})
            mouseClick(button)
            const popup = openedPopup(button)
            button[row.property] = row.value
            tryVerify(() => !popup.visible)
            compare(root.log, [])
        }
    }

    function test_selectable() {
        const button = makeMixed(root.button, { selectable: true })
        mouseClick(button)
        const popup = openedPopup(button)
        compare(root.log, [], "asking edits nothing")
        keyClick(Qt.Key_Enter)
        compare(root.log, ["edited true", "on"])
        tryVerify(() => !popup.visible)
        button.consistent = true
        keyClick(Qt.Key_Enter)
        keyClick(Qt.Key_Space)
        compare(root.log.slice(2), ["edited false", "off", "edited true", "on"])
    }

    function test_choosingByPointer() {
        const button = makeMixed(root.button, { textOff: "AUS" })
        mouseClick(button)
        const popup = openedPopup(button)
        mouseClick(root, button.x + 20, button.y + 32 + 50)
        compare(root.log, ["off"])
        tryVerify(() => !popup.visible)
        mouseClick(button)
        openedPopup(button)
        mouseClick(root, 5, 5)
        tryVerify(() => !popup.visible)
        compare(root.log, ["off"])
    }
}
