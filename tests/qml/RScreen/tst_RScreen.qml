import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RScreen"

    function test_fillsItsParent() {
        const frame = make("Item { width: 300; height: 200; RScreen { padding: 10; Item { anchors.fill: parent } } }")
        const screen = frame.children[0]
        const content = screen.content[0]
        frame.width = 320
        compare([screen.width, screen.height, content.width, content.height], [320, 200, 300, 180])
        compare([screen.flyoutLayer.width, screen.flyoutLayer.height], [320, 200])
        compare(screen.RStyleSet.path[screen.RStyleSet.path.length - 1].typeName, "RScreen2")
    }

    function test_pause() {
        const screen = make("RScreen { active: false; RButton {} }")
        const log = logged(screen, { activated: "on", deactivated: "off" })
        compare([screen.visible, screen.enabled], [false, false])
        screen.active = true
        verify(screen.visible && screen.enabled)
        screen.active = false
        compare(log, ["on", "off"])
    }

    function test_autoZoom() {
        const before = theme.dpAutoZoomFactor
        const screen = make("RScreen { designDpi: 48 }")
        compare(theme.dpAutoZoomFactor, before, "it is not asked to")
        screen.autoZoom = true
        compare(theme.dpAutoZoomFactor, screen.autoZoomFactor)
        screen.designDpi = 96
        compare(theme.dpAutoZoomFactor, screen.autoZoomFactor)
        screen.autoZoom = false
        theme.setDpAutoZoomFactor(before)
    }
}
