import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RCheckBox"

    function test_looks_data() {
        return [
            { tag: "plain", body: "", colours: ["#282828", "#a0a0a0"], icon: "", state: Qt.Unchecked },
            { tag: "selected", body: "selected: true", colours: ["#005691", "#a0a0a0"], icon: "check", state: Qt.Checked },
            { tag: "mixed", body: "selected: true; consistent: false", colours: ["#b67600", "#a0a0a0"], icon: "dash", state: Qt.PartiallyChecked },
            { tag: "mixed and disabled", body: "consistent: false; enabled: false", colours: ["#5a4620", "#646464"], icon: "dash", state: Qt.PartiallyChecked },
            { tag: "mixed and pressed", body: "consistent: false; down: true", colours: ["#794e00", "#a0a0a0"], icon: "dash", state: Qt.PartiallyChecked },
            { tag: "forced by the page", body: "RStyleSet.stateHelper.selected: true", colours: ["#005691", "#a0a0a0"], icon: "", state: Qt.Unchecked },
            { tag: "not to be pressed", body: "readOnly: true; down: true", colours: ["#282828", "#a0a0a0"], icon: "", state: Qt.Unchecked },
        ]
    }
    function test_looks(data) {
        const control = make("RCheckBox { text: 'Phantom power'; " + data.body + " }")
        const box = findChild(control, "box")
        compare([String(box.color), String(box.border.color)], data.colours)
        const icon = findChild(control, "icon")
        compare(icon !== null, data.icon !== "")
        verify(icon === null || String(icon.source).includes(data.icon))
        compare(control.checkState, data.state)
    }

    function test_edits_data() {
        return [
            { tag: "click", act: control => mouseClick(control), log: ["edited true", "clicked"] },
            { tag: "touch", act: control => { touchEvent(control).press(0, control).commit(); touchEvent(control).release(0, control).commit() }, log: ["edited true", "clicked"] },
            { tag: "Space", act: () => keyClick(Qt.Key_Space), log: ["edited true", "clicked"] },
            { tag: "Esc takes a held Space back", act: () => { keyPress(Qt.Key_Space); keyClick(Qt.Key_Escape); keyRelease(Qt.Key_Space) }, log: [] },
            { tag: "off", body: "selected: true", act: control => mouseClick(control), log: ["edited false", "clicked"], selected: false },
            { tag: "mixed to on", body: "selected: true; consistent: false", act: control => mouseClick(control), log: ["edited true", "clicked"] },
            { tag: "read only", body: "readOnly: true", act: control => mouseClick(control), log: ["clicked"] },
            { tag: "the page's own selection", body: "selectable: false", act: control => mouseClick(control), log: ["clicked"] },
            { tag: "disabled", body: "enabled: false", act: control => mouseClick(control), log: [] },
        ]
    }
    function test_edits(data) {
        const control = make("RCheckBox { text: 'Phantom power'; " + (data.body ?? "") + " }")
        const log = logged(control, { selectionEdited: "edited", clicked: "clicked" })
        control.forceActiveFocus(Qt.TabFocusReason)
        data.act(control)
        compare(log, data.log)
        compare(control.selected, data.selected ?? log.includes("edited true"))
    }

    function test_refusingDevice() {
        const page = make("Item { property bool device: false; property alias box: inner; RCheckBox { id: inner; text: 'Mute'; selected: parent.device } }")
        mouseClick(page.box)
        compare(page.box.selected, true, "shown at once")
        tryCompare(page.box, "selected", false)
        page.device = true
        compare(page.box.selected, true, "the page's binding lives on")
    }

    function test_enterGoesOnToTheDialog() {
        const page = make(`FocusScope {
            property int entered: 0
            property alias box: inner
            focus: true
            Keys.onReturnPressed: ++entered
            RCheckBox { id: inner; text: 'Mute' }
        }`)
        page.box.forceActiveFocus()
        keyClick(Qt.Key_Return)
        compare([page.entered, page.box.selected], [1, false])
    }

    function test_places_data() {
        return [
            { tag: "left", body: "", box: 0, words: 28 },
            { tag: "right", body: "boxOnRight: true", box: 180, words: 4 },
            { tag: "mirrored", body: "LayoutMirroring.enabled: true", box: 180, words: 4 },
            { tag: "mirrored right", body: "boxOnRight: true; LayoutMirroring.enabled: true", box: 0, words: 28 },
        ]
    }
    function test_places(data) {
        const control = make("RCheckBox { text: 'Mute'; confirmed: false; width: 200; " + data.body + " }")
        compare(control.height, 32)
        compare(findChild(control, "box").x, data.box)
        compare(control.contentItem.x, data.words)
        const dot = findChild(control, "dot")
        compare([dot.x, dot.y], [data.box === 0 ? 17 : 177, 3])
        control.confirmed = true
        compare(dot.visible, false)
        compare(make("RCheckBox {}").implicitWidth, 20)
    }
}
