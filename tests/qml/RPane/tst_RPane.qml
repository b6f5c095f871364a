import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RPane"

    function headerOf(pane: Item): var {
        return Array.from(pane.children).find(child => child.RStyleSet.name === "header" && child.visible) ?? null
    }

    /*! Sizes around a content of 200 by 100. */
    function test_sizes_data() {
        return [
            { tag: "no title", type: "RPane", properties: {}, header: 0, size: [216, 116] },
            { tag: "title", type: "RPane", properties: { title: "Inputs" }, header: 32, size: [216, 148] },
            { tag: "title that goes", type: "RPane { title: 'Inputs'; Component.onCompleted: title = ''; ", properties: {}, header: 0, size: [216, 116] },
            { tag: "sub", type: "RPaneSub", properties: { title: "Inputs" }, header: 24, size: [216, 140] },
            { tag: "collapsed", type: "RPane", properties: { title: "Inputs", collapsed: true }, header: 32, size: [216, 32] },
            { tag: "collapsible without a title", type: "RPane", properties: { collapsible: true }, header: 32, size: [216, 148] },
            { tag: "padding of the page", type: "RPane { padding: 20; ", properties: { title: "Inputs" }, header: 32, size: [240, 172] },
            { tag: "no padding of the page", type: "RPane { padding: 0; ", properties: {}, header: 0, size: [200, 100] },
            { tag: "padding bound by the page", type: "RPane { id: pane; property real gap: 0; padding: gap; ", properties: { gap: 30 }, header: 0, size: [260, 160] },
            { tag: "padding at the top", type: "RPane { topPadding: 0; ", properties: {}, header: 0, size: [216, 108] },
            { tag: "no padding", type: "RPane", properties: { contentPadding: 0 }, header: 0, size: [200, 100] }
        ]
    }
    function test_sizes(row) {
        const body = row.type.includes("{") ? row.type : row.type + " {"
        const pane = make(body + " Item { implicitWidth: 200; implicitHeight: 100 } }")
        Object.assign(pane, row.properties)
        compare([pane.headerHeight, pane.implicitWidth, pane.implicitHeight], [row.header, ...row.size])
        compare(headerOf(pane)?.height ?? 0, row.header)
        compare(pane.content[0].visible, !pane.collapsed, "what is not seen rests")
    }

    function test_headerShowsAllOfItself() {
        const pane = make("RPane { title: 'A title that is longer than the content'; headerContent: RButton { text: 'Mute'; implicitWidth: 80 } }")
        verify(pane.implicitWidth > 200)
        const button = pane.headerContent[0]
        const spy = spyOn(button, "clicked")
        pane.collapsible = true
        mouseClick(button)
        compare([spy.count, pane.collapsed], [1, false])
    }

    function test_collapse_data() {
        return [
            { tag: "click", act: pane => mouseClick(pane, 100, 16) },
            { tag: "Enter", act: () => keyClick(Qt.Key_Return) },
            { tag: "Space", act: () => keyClick(Qt.Key_Space) }
        ]
    }
    function test_collapse(row) {
        const pane = make("RPane { title: 'Inputs'; collapsible: true; property bool folded: false; collapsed: folded; RButton {} }")
        const log = logged(pane, { collapsedEdited: "edited" })
        mouseClick(pane, 100, 16)
        compare([log.splice(0), pane.collapsed], [["edited true"], true])
        pane.folded = true
        row.act(pane)
        compare([log.splice(0), pane.collapsed], [["edited false"], false])
        tryVerify(() => pane.collapsed, 1000, "the page did not take it")
        pane.collapsible = false
        mouseClick(pane, 100, 16)
        compare(log, [])
    }

    function test_focusDoesNotStayInWhatIsHidden() {
        const pane = make("RPane { title: 'Inputs'; RButton {} }")
        const button = pane.content[0]
        button.forceActiveFocus()
        pane.collapsed = true
        verify(!button.activeFocus && pane.activeFocus)
    }

    function test_border_data() {
        return [
            { tag: "light", sheet: "light", pane: true, sub: false },
            { tag: "dark has none", sheet: "dark", pane: false, sub: false },
            { tag: "contrast", sheet: "contrast-dark", pane: true, sub: false }
        ]
    }
    function test_border(row) {
        root.sheet = row.sheet
        compare(make("RPane { }").borderShown, row.pane)
        compare(make("RPaneSub { }").borderShown, row.sub)
        const own = make("RPane { ssBorderColor: 'red'; ssBackground: 'blue' }")
        compare([own.borderShown, String(own.background.border.color), String(own.background.color)], [true, "#ff0000", "#0000ff"])
    }

    function test_fixedHeight() {
        const pane = make("RPane { title: 'Inputs'; width: 200; height: 300; collapsed: true }")
        compare(pane.background.height, 32)
        verify(!pane.contains(Qt.point(10, 40)))
        pane.collapsed = false
        compare(pane.background.height, 300)
    }

    function test_mirrored() {
        const pane = make("RPane { title: 'Inputs'; width: 300; LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true; headerContent: Item { width: 20; height: 20 } }")
        compare(pane.headerContent[0].mapToItem(pane, 0, 0).x, 4)
    }
}
