import QtQuick
import QtQuick.Templates as T
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RAppBarButtons"

    function test_pressTwice_data() {
        return [
            { tag: "mouse", press: () => mouseClick(root.button) },
            { tag: "Enter", press: () => keyClick(Qt.Key_Return) },
            { tag: "Space", press: () => keyClick(Qt.Key_Space) },
            { tag: "touch", press: () => {
                touchEvent(root.button).press(0, root.button, 10, 10).commit()
                touchEvent(root.button).release(0, root.button, 10, 10).commit()
                wait(Application.styleHints.mouseDoubleClickInterval + 50)
            } }
        ]
    }

    property var button: null

    function test_pressTwice(row) {
        root.button = make("RAppBarStateButton { text: 'MUTE ALL'; pressTwice: true; selectable: true }")
        root.button.forceActiveFocus()
        const log = logged(root.button, { selectionEdited: "edited", clicked: "clicked" })
        row.press()
        verify(root.button.armed)
        compare(log, [])
        wait(2) // two presses of Space at one time would be one that is held
        row.press()
        verify(!root.button.armed)
        compare(log, ["edited true", "clicked"])
        row.press()
        compare(log.length, 2, "armed anew")
    }

    function test_disarms_data() {
        return [
            { tag: "Esc", run: button => keyClick(Qt.Key_Escape) },
            { tag: "focus", run: button => root.forceActiveFocus() },
            { tag: "disabled", run: button => button.enabled = false },
            { tag: "hidden", run: button => button.visible = false },
            { tag: "pressTwice off", run: button => button.pressTwice = false },
            { tag: "time", run: button => tryVerify(() => !button.armed, 4000) }
        ]
    }
    function test_disarms(row) {
        const button = make("RAppBarStateButton { text: 'MUTE ALL'; pressTwice: true }")
        const log = logged(button, { clicked: "clicked" })
        mouseClick(button)
        verify(button.armed)
        row.run(button)
        verify(!button.armed)
        compare(log, [])
    }

    function test_doubleClickIsOnePress() {
        const button = make("RAppBarStateButton { text: 'MUTE ALL'; pressTwice: true }")
        const log = logged(button, { clicked: "clicked" })
        mouseDoubleClickSequence(button)
        verify(button.armed)
        compare(log, [])
    }

    function test_flashesInStep() {
        const page = make("Row { RAppBarStateButton { text: 'a'; flashing: true } RAppBarStateButton { text: 'b' } }")
        const a = page.children[0]
        const b = page.children[1]
        tryVerify(() => a.flashLit, 1100)
        b.flashing = true
        verify(b.flashLit, "with what flashes already")
        tryVerify(() => !a.flashLit, 600)
        verify(!b.flashLit)
        const lit = spyOn(a, "flashLitChanged")
        a.visible = false
        tryVerify(() => b.flashLit, 600)
        compare(lit.count, 0, "what is hidden rests")
        a.visible = true
        verify(a.flashLit)
        a.flashing = false
        verify(!a.flashLit)
    }

    function test_restsInAHiddenWindow() {
        const window = make("Window { width: 100; height: 60; visible: true; property alias button: b; RAppBarStateButton { id: b; flashing: true } }")
        tryVerify(() => window.button.flashLit, 1100)
        window.visible = false
        verify(!window.button.flashLit)
        window.visible = true
        tryVerify(() => window.button.flashLit, 1100)
    }

    function test_flashesBetweenTwoColours_data() {
        return [{ tag: "light" }, { tag: "dark" }, { tag: "contrast-light" }, { tag: "contrast-dark" }]
    }
    function test_flashesBetweenTwoColours(row) {
        root.sheet = row.tag
        const button = make("RAppBarStateButton { text: 'ONLINE'; flashing: true }")
        tryVerify(() => button.flashLit, 1100)
        verify(!Qt.colorEqual(button.ssBackground, button.ssBackgroundFlashing))
        compare(button.background.color, button.ssBackgroundFlashing)
        verify(Math.abs(button.textControl.color.hslLightness - button.ssBackgroundFlashing.hslLightness) > 0.25)
    }

    function test_badges() {
        for (const kind of ["RAppBarButton", "RAppBarNavButton", "RAppBarSubNavButton", "RAppBarStateButton"]) {
            const button = make(kind + " { label: 'x' }")
            const parts = button.children.length
            button.badge = "1234"
            compare([button.children.length, button.shortBadge], [parts + 1, "99+"])
            button.badge = ""
            verify(!button.children[parts].visible)
        }
    }

    /*! The focus is seen on every button, under every sheet: a frame of its own, or a border that was not there. */
    function test_focusIsSeen_data() {
        const rows = []
        for (const sheet of ["light", "dark", "contrast-light", "contrast-dark"])
            for (const kind of ["RAppBarButton", "RAppBarNavButton", "RAppBarSubNavButton", "RAppBarStateButton"])
                rows.push({ tag: sheet + " " + kind, sheet: sheet, kind: kind })
        return rows
    }
    function test_focusIsSeen(row) {
        root.sheet = row.sheet
        const button = make(row.kind + " { text: 'x'; label: 'x' }")
        waitForRendering(button)
        const before = grabImage(button).pixel(0, 20)
        button.forceActiveFocus()
        waitForRendering(button)
        verify(!Qt.colorEqual(grabImage(button).pixel(0, 20), before))
    }

    function test_toolTips_data() {
        return [
            { tag: "RAppBarButton { label: 'Undo'; iconKey: 'undo' }", text: "Undo" },
            { tag: "RAppBarNavButton { text: 'Mixer'; iconKey: 'mixer'; iconOnly: true }", text: "Mixer" },
            { tag: "RAppBarNavButton { text: 'A long name'; width: 40 }", text: "A long name" },
            { tag: "RAppBarStateButton { text: 'A long name'; width: 40 }", text: "A long name" },
            { tag: "RAppBarNavButton { text: 'Mixer' }", text: "" }
        ]
    }
    function test_toolTips(row) {
        const button = make(row.tag)
        waitForRendering(button)
        compare(button.shortened, row.text !== "")
        const overlay = button.T.Overlay.overlay
        mouseMove(button, 5, 5)
        if (row.text === "")
            wait(0)
        else
            tryVerify(() => overlay.visible && overlay.children.length > 0, 2000)
        compare(overlay.visible, row.text !== "")
        mouseMove(root, 390, 290)
        tryVerify(() => !overlay.visible)
    }
}
