import QtQuick
import QtQuick.Templates as T
import QtTest
import TambleClient.Control 1.0

TestCase {
    id: root
    name: "RApplicationWindow"
    when: windowShown
    visible: true

    property var exceptions: []
    property int loads: 0

    Component {
        id: windowComponent
        RApplicationWindow {
            property alias button: button
            property alias refresh: refreshShortcut
            property alias wheel: wheelHandler
            readonly property Item overlay: button.T.Overlay.overlay
            appStyleSheetKey: ""
            visible: true
            onStyleException: (type, message) => root.exceptions.push(type)
            RButton {
                id: button
                x: 400
                text: "Mute"
            }
            RLabel {
                y: 40
                text: "&Mute"
                buddy: button
            }
            RIcon {
                y: 80
                key: "settings"
            }
            RInconsistentButton {
                y: 120
            }
            WheelHandler {
                id: wheelHandler
            }
            Shortcut {
                id: refreshShortcut
                sequence: "F5"
            }
        }
    }

    Component {
        id: plainComponent
        RApplicationWindow {
            onStyleException: (type, message) => root.exceptions.push(message)
        }
    }

    function init() {
        // There is no theme before the window is made, and whatever reads it too early warns.
        failOnWarning(/.*/)
        root.exceptions = []
    }

    function shownWindow(properties: var): var {
        const window = createTemporaryObject(windowComponent, null, properties ?? {})
        root.loads = 0
        window.styleEngine.styleChanged.connect(() => root.loads += 1)
        window.requestActivate()
        tryVerify(() => window.active)
        return window
    }

    function test_themes_data() {
        return [
            { tag: "light", ground: "#dcdcdc" },
            { tag: "contrast-dark", ground: "#000000" },
            { tag: "contrast-light", ground: "#ffffff" },
            { tag: "dark", ground: "#323232" }
        ]
    }
    function test_themes(row) {
        const window = shownWindow()
        window.setTheme(row.tag)
        compare(String(window.styleEngine.defaultStyleSheetSource), "qrc:/style/tamble." + row.tag + ".style")
        compare(window.background.color, row.ground)
        grabImage(window.contentItem) // missing keys are reported with a frame
        compare(root.exceptions, [])
    }

    function test_oneLoadPerChange() {
        const window = shownWindow({ appStyleSheetDirectory: Qt.resolvedUrl("."), appStyleSheetKey: "own" })
        compare(window.button.ssBackground, "#102030", "the application's sheet is loaded too")
        theme.stylesheet = "light"
        tryCompare(root, "loads", 1)
        compare(window.button.ssBackground, "#405060")
        window.setTheme("dark")
        compare(root.loads, 2)
        window.appStyleSheetKey = ""
        tryCompare(root, "loads", 3)
        compare(String(window.styleEngine.styleSheetSource), "")
        wait(0)
        compare(root.loads, 3)
        compare(root.exceptions, [])
    }

    function test_appSheetNeedNotExist_data() {
        const directory = String(Qt.resolvedUrl("."))
        return [
            { tag: "nothing set", properties: {}, source: "", exceptions: [] },
            { tag: "set to what it is", properties: { appStyleSheetKey: "app" }, source: "qrc:/style/app.dark.style",
                exceptions: ["Style ':/style/app.dark.style' not found."] },
            { tag: "other theme", properties: { appStyleSheetTheme: "all" }, source: "qrc:/style/app.all.style",
                exceptions: ["Style ':/style/app.all.style' not found."] },
            { tag: "no key", properties: { appStyleSheetKey: "" }, source: "", exceptions: [] },
            { tag: "directory without slash",
                properties: { appStyleSheetDirectory: directory.slice(0, -1), appStyleSheetKey: "own" },
                source: directory + "own.dark.style", exceptions: [] },
            { tag: "directory that is half a name",
                properties: { appStyleSheetDirectory: directory + "o", appStyleSheetKey: "wn" },
                source: directory + "own.dark.style", exceptions: [] }
        ]
    }
    function test_appSheetNeedNotExist(row) {
        const window = createTemporaryObject(plainComponent, null, row.properties)
        compare(String(window.styleEngine.styleSheetSource), row.source)
        compare(window.background.color, "#323232")
        compare(root.exceptions, row.exceptions)
    }

    function test_unnamedAppSheetAtAChangeOfTheme() {
        const window = createTemporaryObject(plainComponent, null)
        const before = Date.now()
        window.setTheme("light")
        compare(window.background.color, "#dcdcdc")
        compare(root.exceptions, [])
        verify(Date.now() - before < 1000, "waits for no file")
        window.appStyleSheetTheme = "none"
        tryCompare(root, "exceptions", ["Style ':/style/app.none.style' not found."], 3000)
    }

    function test_styleExceptions() {
        const window = shownWindow({ reportMissingKeys: false })
        window.tambleStyleSheetKey = "none"
        tryVerify(() => root.exceptions.includes("styleSheetNotFound"), 3000)
    }

    function test_zoomShortcuts_data() {
        return [
            { tag: "larger", keys: [Qt.Key_Plus, Qt.Key_Equal], factor: 1.2 },
            { tag: "smaller", keys: [Qt.Key_Minus], factor: 0.9 },
            { tag: "automatic", keys: [Qt.Key_Minus, Qt.Key_0], factor: 0 },
            { tag: "from automatic", auto: 1.5, keys: [Qt.Key_Plus], factor: 1.6 },
            { tag: "upper limit", start: 2.95, keys: [Qt.Key_Plus, Qt.Key_Plus], factor: 3 },
            { tag: "lower limit", start: 0.5, keys: [Qt.Key_Minus], factor: 0.5 },
            { tag: "switched off", shortcuts: false, keys: [Qt.Key_Plus], factor: 0 }
        ]
    }
    function test_zoomShortcuts(row) {
        const window = shownWindow({ zoomShortcuts: row.shortcuts ?? true })
        theme.setDpAutoZoomFactor(row.auto ?? 1)
        theme.setDpZoomFactor(row.start ?? 0)
        window.contentItem.forceActiveFocus()
        for (const key of row.keys)
            keyClick(key, Qt.ControlModifier)
        compare(theme.dpZoomFactor, row.factor)
        compare(window.button.height, 32 * theme.dp(1))
    }

    function test_busyTakesEverything_data() {
        const centre = button => [button.width / 2, button.height / 2]
        return [
            { tag: "mouse", act: button => mouseClick(button) },
            { tag: "hover", act: button => mouseMove(button, ...centre(button)) },
            { tag: "touch", act: button => touchEvent(button).press(0, button).commit().release(0, button).commit() },
            { tag: "wheel", act: button => mouseWheel(button, ...centre(button), 0, 120) },
            { tag: "focused key", act: () => keyClick(Qt.Key_Space) },
            { tag: "mnemonic", act: () => keyClick(Qt.Key_M, Qt.AltModifier) },
            { tag: "Tab", act: () => { keyClick(Qt.Key_Tab); keyClick(Qt.Key_Space) } },
            { tag: "Esc", act: () => { keyClick(Qt.Key_Escape); keyClick(Qt.Key_Space) } },
            { tag: "page's shortcut", act: () => keyClick(Qt.Key_F5) },
            { tag: "beside a popup", act: (button, window) => {
                createTemporaryQmlObject("import QtQuick.Templates\nPopup { width: 100; height: 100; focus: true; modal: true }", window.contentItem).open()
                keyClick(Qt.Key_Space)
                mouseClick(button)
            } }
        ]
    }
    function test_busyTakesEverything(row) {
        const window = shownWindow()
        const log = []
        window.button.clicked.connect(() => log.push("clicked"))
        window.button.hoveredChanged.connect(() => log.push("hovered"))
        window.refresh.activated.connect(() => log.push("shortcut"))
        window.wheel.wheel.connect(() => log.push("wheel"))
        window.button.forceActiveFocus()
        window.busy = true
        row.act(window.button, window)
        wait(0)
        compare(log, [])
        compare(window.button.activeFocus, false)

        window.busy = false
        tryVerify(() => !window.overlay.visible || row.tag === "beside a popup")
        if (row.tag === "beside a popup")
            return
        compare(window.button.activeFocus, true, "the focus comes back")
        keyClick(Qt.Key_Space)
        verify(log.includes("clicked"))
    }

    function test_busyShowsAfterAWhile() {
        const window = shownWindow({ busy: true })
        const overlay = window.overlay
        const veil = overlay.children[overlay.children.length - 1]
        compare([veil.width, veil.height], [window.width, window.height])
        compare(veil.opacity, 0, "short waits do not flicker")
        tryCompare(veil, "opacity", 1)
        window.width += 100
        tryCompare(veil, "width", window.width)
        window.busy = false
        tryCompare(veil, "visible", false)
        compare(root.exceptions, [])
    }

    function test_closing_data() {
        return [
            { tag: "at once", confirm: false },
            { tag: "after a question", confirm: true }
        ]
    }
    function test_closing(row) {
        const window = shownWindow({ confirmClose: row.confirm })
        let requests = 0
        window.closeRequested.connect(() => requests += 1)
        window.close()
        compare(requests, 1)
        compare(window.visible, row.confirm)
    }
}
