import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RButton"

    function test_size_data() {
        return [
            { tag: "RButton", width: 144, height: 32 },
            { tag: "RButtonIcon", width: 144, height: 32 },
            { tag: "RButtonIconLabel", width: 144, height: 32 },
            { tag: "RButtonIconLabelH", width: 144, height: 32 },
            { tag: "RButtonIconLabelV", width: 144, height: 64 },
            { tag: "RButtonLabelText", width: 144, height: 64 },
            { tag: "RButtonSwitch", width: 36, height: 32 },
            { tag: "RInconsistentButton", width: 144, height: 32 },
        ]
    }
    function test_size(data) {
        // Properties that later versions of Qt's own types brought, which a native type in between can hide.
        const button = make(data.tag + " { activeFocusOnTab: false; horizontalPadding: 2; icon.width: 3 }")
        compare([button.activeFocusOnTab, button.horizontalPadding, button.icon.width], [false, 2, 3])
        compare([button.width, button.height], [data.width, data.height])
        theme.setDpZoomFactor(2)
        compare([button.width, button.height], [2 * data.width, 2 * data.height])
        theme.setDpZoomFactor(0)
    }

    function test_states_data() {
        return [
            { tag: "plain", body: "", states: "" },
            { tag: "disabled and selected", body: "enabled: false; selected: true", states: "disabled selected " },
            { tag: "mixed masks selected", body: "selected: true; consistent: false", states: "inconsistent " },
            { tag: "variants do not mask it", type: "RButtonIcon", body: "selected: true; consistent: false", states: "selected inconsistent " },
            { tag: "active", body: "active: true", states: "active " },
            { tag: "down", body: "down: true", states: "pressed " },
            { tag: "a page's own state", body: "RStyleSet.stateHelper.disabled: true", states: "disabled " },
        ]
    }
    function test_states(data) {
        compare(make((data.type ?? "RButton") + " {" + data.body + "}").RStyleSet.state, data.states)
    }

    function test_focusFrameFollowsTheState() {
        const button = make("RButton { RStyleSet.stateHelper.focus: false }")
        button.forceActiveFocus()
        compare(button.background.focusVisible, false)
        button.RStyleSet.stateHelper.focus = true
        compare(button.background.focusVisible, true)
    }

    function test_coloursFollowSheetAndState() {
        const button = make("RButton { text: 'Level' }")
        compare(button.background.color, "#505050")
        compare(button.textColor, "#efefef")
        button.enabled = false
        compare(button.textColor, "#8c8c8c")
        button.enabled = true
        button.selected = true
        compare(button.line.visible, true)
        compare(button.line.height, 4)
        root.sheet = "light"
        button.selected = false
        compare(button.background.color, "#a0a0a0")
        compare(button.line.visible, false)
    }

    function test_lineOfRotatedButtons_data() {
        return [
            { tag: "upright", rotation: 0, visible: true, size: [144, 4] },
            { tag: "to the right", rotation: 90, visible: true, size: [4, 32] },
            { tag: "to the left", rotation: -90, visible: true, size: [4, 32] },
            { tag: "askew", rotation: 45, visible: false, size: [4, 32] },
        ]
    }
    function test_lineOfRotatedButtons(data) {
        const button = make("RButton { selected: true; rotation: " + data.rotation + " }")
        compare(button.line.visible, data.visible)
        compare([button.line.width, button.line.height], data.size)
    }

    function test_pageOverridesTheLine() {
        const button = make("RButton { line.height: 8; line.color: 'red'; selected: true }")
        compare([button.line.height, button.line.y, String(button.line.color)], [8, 24, "#ff0000"])
    }

    function test_press_data() {
        return test_size_data()
    }
    function test_press(data) {
        const button = make(data.tag + " { text: 'Level' }")
        const clicked = spyOn(button, "clicked")
        mouseClick(button)
        compare(clicked.count, 1, "mouse")
        touchEvent(button).press(0, button).commit()
        compare(button.down, true)
        touchEvent(button).release(0, button).commit()
        compare(clicked.count, 2, "touch")
        compare(button.selected, false, "a page decides on the selection")

        button.forceActiveFocus(Qt.TabFocusReason)
        compare(button.background.focusVisible, true)
        keyClick(Qt.Key_Space)
        compare(clicked.count, 3, "space")
        const takesEnter = data.tag !== "RButton"
        keyClick(Qt.Key_Return)
        keyClick(Qt.Key_Enter)
        compare(clicked.count, takesEnter ? 5 : 3, "enter")
        const custom = spyOn(button, "customEventActivated")
        button.useCustomEvent = true
        keyClick(Qt.Key_Return)
        compare(custom.count, takesEnter ? 1 : 0, "enter with an event of the page's own")
        compare(clicked.count, takesEnter ? 5 : 3)
    }

    function test_selectableButtonShowsTheEditBeforeTheDevice() {
        const device = make("QtObject { property bool muted: false }")
        const button = make("RButton { property QtObject device; selectable: true; selected: device !== null && device.muted }")
        button.device = device
        const log = logged(button, { selectionEdited: "edited", clicked: "clicked" })
        mouseClick(button)
        compare(log, ["edited true", "clicked"])
        compare(button.selected, true, "at once")
        tryCompare(button, "selected", false, 1000, "the device did not take it")
        device.muted = true
        compare(button.selected, true, "the page's binding is alive")
        button.settleTime = 2000
        mouseClick(button)
        wait(400)
        compare(button.selected, false, "a slow device has its time")
    }

    function test_onlyClicksEdit_data() {
        return [
            { tag: "mnemonic", act: () => keyClick(Qt.Key_M, Qt.AltModifier), log: ["edited true", "clicked"] },
            { tag: "double click", act: button => mouseDoubleClickSequence(button), log: ["edited true", "clicked", "double"] },
            { tag: "Space pressed elsewhere", act: () => keyRelease(Qt.Key_Space), log: [] },
            { tag: "mixed to selected", body: "selected: true; consistent: false", act: button => mouseClick(button), log: ["edited true", "clicked"] },
        ]
    }
    function test_onlyClicksEdit(data) {
        const button = make("RButton { text: '&Mute'; selectable: true; " + (data.body ?? "") + " }")
        const log = logged(button, { selectionEdited: "edited", clicked: "clicked", doubleClicked: "double" })
        button.forceActiveFocus()
        data.act(button)
        compare(log, data.log)
        compare(button.selected, log.length > 0)
    }

    function test_mnemonics_data() {
        return [
            { tag: "marked", text: "&Mute", shown: "Mute", key: Qt.Key_M, clicks: 1 },
            { tag: "inside", text: "E&xit", shown: "Exit", key: Qt.Key_X, clicks: 1 },
            { tag: "escaped", text: "R&&D", shown: "R&D", key: Qt.Key_D, clicks: 0 },
            { tag: "a word of its own", text: "Drums & Bass", shown: "Drums & Bass", key: Qt.Key_Space, clicks: 0 },
            { tag: "before a sign", text: "A&-B", shown: "A&-B", key: Qt.Key_Minus, clicks: 0 },
            { tag: "at the end", text: "Keys &", shown: "Keys &", key: Qt.Key_K, clicks: 0 },
        ]
    }
    function test_mnemonics(data) {
        const button = make("RButton { text: '" + data.text + "' }")
        const clicked = spyOn(button, "clicked")
        compare(button.textControl.text, data.shown)
        keyClick(data.key, Qt.AltModifier)
        compare(clicked.count, data.clicks)
    }

    function test_deviceTextIsNotInterpreted() {
        const button = make("RButton { id: b; converter: RValueConverter { value: 'R&D <b>1</b>' } }")
        for (const text of [button.value, button.text, button.textControl.text])
            compare(text, "R&D <b>1</b>")
        compare(button.textControl.textFormat, Text.PlainText)
        const clicked = spyOn(button, "clicked")
        keyClick(Qt.Key_D, Qt.AltModifier)
        compare(clicked.count, 0, "nor as a key")
    }

    function test_mirrored() {
        const button = make("RButtonIconLabelH { label: 'Solo'; iconItem.key: 'solo'; width: 144 }")
        compare([button.iconItem.x, button.txt.x], [4, 28])
        button.LayoutMirroring.enabled = true
        compare([button.iconItem.x, button.txt.x], [116, 0])
    }

    function test_switch_data() {
        return [
            { tag: "off", body: "", handle: 1, text: "OFF", shown: true },
            { tag: "on", body: "selected: true", handle: 19, text: "ON", shown: true },
            { tag: "mixed", body: "consistent: false", handle: 10, text: "OFF", shown: false },
            { tag: "without text", body: "showHandleText: false", handle: 1, text: "OFF", shown: false },
            { tag: "mirrored", body: "LayoutMirroring.enabled: true", handle: 19, text: "OFF", shown: true },
            { tag: "disabled", body: "enabled: false", handle: 1, text: "OFF", shown: true, opacity: 0.5 },
            { tag: "mixed and disabled", body: "consistent: false; enabled: false", handle: 10, text: "OFF", shown: false, opacity: 0.5 },
        ]
    }
    function test_switch(data) {
        const bar = make("RButtonSwitch {" + data.body + "}").contentItem.children[0]
        const text = bar.children[0]
        const handle = bar.children[1]
        compare([bar.height, handle.width, handle.height], [16, 16, 14])
        compare(handle.x, data.handle)
        compare([text.text, text.visible], [data.text, data.shown])
        compare(bar.parent.opacity, data.opacity ?? 1)
    }
}
