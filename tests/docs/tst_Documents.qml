import QtQuick
import QtTest

/*! What the guides say that their pages do when somebody uses them. */
TestCase {
    id: root

    name: "Documents"
    when: windowShown
    visible: true

    function init() {
        failOnWarning(/.*/)
    }

    function open(name: string): var {
        const component = Qt.createComponent(Qt.resolvedUrl("snippets/" + name))
        compare(component.errorString(), "")
        const window = createTemporaryObject(component, null)
        window.requestActivate()
        tryVerify(() => window.active)
        return window
    }

    /*! The item below `item` that has a member of this name. */
    function find(item: var, member: string): var {
        for (const child of Array.from(item.children)) {
            const found = child[member] !== undefined ? child : root.find(child, member)
            if (found)
                return found
        }
        return null
    }

    function handles(window: var): var {
        const curve = root.find(window.contentItem, "holdFilterPoint")
        return Array.from(curve.children).filter(child => child.index !== undefined)
    }

    function dragBy(handle: var, x: real, y: real) {
        const disc = handle.width / 2
        mousePress(handle, disc, disc)
        mouseMove(handle, disc + x / 2, disc + y / 2)
        mouseMove(handle, disc + x / 2, disc + y / 2)
        mouseRelease(handle, disc, disc)
    }

    function test_firstPageWritesBack() {
        const page = root.open("FirstPage.qml")
        const fader = root.find(page.contentItem, "valueEdited")
        const meter = root.find(page.contentItem, "valueMinYellow")
        fader.forceActiveFocus()
        keyClick(Qt.Key_Up)
        compare(page.level, -11.5)
        compare(meter.value, -11.5)

        const handle = root.handles(page)[0]
        compare(handle.frequency, 1000)
        root.dragBy(handle, -50, -20)
        verify(page.band.freq < 900)
        verify(page.band.gain > 6.5)
        compare(page.band.quality, 1.4)
        wait(400) // the settle time is over: what counts now is the page's
        fuzzyCompare(handle.frequency, page.band.freq, 0.01)
        fuzzyCompare(handle.gain, page.band.gain, 0.01)

        const button = root.find(page.contentItem, "plainText")
        mouseClick(button)
        compare(button.text, "light")
        compare(String(page.styleEngine.defaultStyleSheetSource), "qrc:/style/tamble.light.style")
    }

    function test_themesFollowEachOther() {
        const page = root.open("ThemeChooser.qml")
        const button = root.find(page.contentItem, "plainText")
        const words = []
        for (let i = 0; i < 4; ++i) {
            words.push(button.text)
            mouseClick(button)
        }
        compare(words, ["light", "dark", "contrast-light", "contrast-dark"])
        compare(button.text, "light")
    }

    function test_ownSheet() {
        const page = root.open("OwnSheet.qml")
        compare(root.find(page.contentItem, "plainText").ssBackground, "#7a1f6e")
        page.setTheme("light")
        compare(root.find(page.contentItem, "plainText").ssBackground, "#7a1f6e")
    }

    function test_withoutApplicationWindow() {
        const page = root.open("PlainWindow.qml")
        const button = root.find(page.contentItem, "plainText")
        compare(button.height, 32)
        const dark = String(button.ssBackground)
        mouseClick(button)
        tryVerify(() => String(button.ssBackground) !== dark)
        const zoomed = root.open("OwnTheme.qml")
        compare(root.find(zoomed.contentItem, "plainText").height, 48)
    }

    function test_lateDevice() {
        const page = root.open("LateDevice.qml")
        const fader = root.find(page.contentItem, "valueEdited")
        fader.forceActiveFocus()
        keyClick(Qt.Key_Up)
        compare(fader.value, -19.5, "the wish is shown")
        compare(fader.confirmed, false)
        compare(page.level, -20)
        tryCompare(page, "level", -19.5)

        page.level = 0
        tryCompare(fader, "value", 0)
        keyClick(Qt.Key_Up)
        compare(fader.value, 0.5)
        tryCompare(fader, "value", 0, 1000, "refused")

        const [low] = root.handles(page)
        root.dragBy(low, -150, 0)
        tryVerify(() => Math.abs(low.frequency - 50) < 0.01)
    }

    function test_ownControls() {
        const page = root.open("Panel.qml")
        const button = root.find(page.contentItem, "taps")
        const lamp = root.find(page.contentItem, "ssOff")
        compare(lamp.color, "#404040")
        const plain = String(button.ssBackground)
        mouseClick(button)
        compare(button.taps, 1)
        compare(lamp.color, "#78be20")
        page.setTheme("light")
        verify(String(button.ssBackground) !== plain)
        compare(lamp.color, "#78be20")

        const knob = root.find(page.contentItem, "ssHandle")
        compare(String(knob.ssBackground), "#404040")
        knob.forceActiveFocus()
        keyClick(Qt.Key_Up)
        compare(page.level, -19.5)
        page.level = 0
        tryCompare(knob, "value", 0, 1000, "settled")
        keyClick(Qt.Key_Up)
        compare(knob.value, 0.5)
        tryCompare(knob, "value", 0, 1000, "the page allows no more")
    }

    function test_controlInTheLibrary() {
        const page = root.open("PlainWindow.qml")
        const component = Qt.createComponent(Qt.resolvedUrl("snippets/qml/RTapButton/RTapButton.qml"))
        compare(component.errorString(), "")
        const button = component.createObject(page.contentItem, { y: 200, text: "&Tap" })
        mouseClick(button)
        compare(button.taps, 1)
        compare(button.contentItem.text, "Tap (1)")
    }
}
