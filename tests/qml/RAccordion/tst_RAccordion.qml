import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RAccordion"

    /*! An accordion 280 by 280 with sections named by letters, each with a body of 84 + 16; a "|" is a caption. */
    function accordion(letters: string, more = ""): var {
        const entries = Array.from(letters, letter => letter === "|" ? "RAccordionSectionHeader { title: 'group'; collapsible: true }"
            : "RAccordionItem { title: '" + letter + "'; Item { width: 10; height: 84; RButton { objectName: 'in body'; text: 'x' } } }")
        return make("RAccordion { width: 280; height: 280; animated: " + (more === "animated") + "\n" + (more === "animated" ? "" : more) + "\n" + entries.join("\n") + "}")
    }

    /*! The accordion of rows of a model. */
    function listed(more = ""): var {
        return make(`RAccordion {
            property alias model: list
            width: 280; height: 280; animated: false; reorderable: true
            ${more}
            Repeater {
                model: ListModel { id: list; Component.onCompleted: { for (const name of "abcdefgh") append({ name: name }) } }
                RAccordionItem { required property string name; title: name; lazyContent: Item { implicitHeight: 84 } }
            }
        }`)
    }

    function sections(accordion: var): var {
        return Array.from(accordion.contentItem.contentItem.children[0].children).filter(child => child.header !== undefined)
    }

    function titles(accordion: var): string {
        return sections(accordion).map(section => section.title).join("")
    }

    function open(accordion: var): string {
        return Array.from(accordion.expandedItems).map(section => section.title).join("")
    }

    /*! Of the header that has the focus. */
    function focused(accordion: var): string {
        return sections(accordion).filter(section => section.header.activeFocus).map(section => section.title).join("")
    }

    function settle(accordion: Item) {
        waitForRendering(accordion)
        wait(0)
    }

    function test_places() {
        const panel = accordion("ab")
        settle(panel)
        const [a, b] = sections(panel)
        compare([a.y, a.width, a.height, b.y], [0, 280, 32, 33])
        a.expanded = true
        settle(panel)
        compare([a.height, b.y, panel.contentHeight], [132, 133, 165])
        a.visible = false
        tryCompare(b, "y", 0)
        panel.width = 200
        compare(b.width, 200)
    }

    function test_clicksAndKeys_data() {
        return [
            { tag: "click", act: panel => mouseClick(panel, 100, 16), open: "a", log: ["toggled true"] },
            { tag: "click on an open one", first: "a", act: panel => mouseClick(panel, 100, 16), open: "", log: ["toggled false"] },
            { tag: "touch", act: panel => { touchEvent(panel).press(0, panel, 100, 16).commit(); touchEvent(panel).release(0, panel, 100, 16).commit() }, open: "a", log: ["toggled true"] },
            { tag: "Space", act: () => keyClick(Qt.Key_Space), open: "a", log: ["toggled true"] },
            { tag: "Enter", act: () => keyClick(Qt.Key_Return), open: "a", log: ["toggled true"] },
            { tag: "Right", act: () => { keyClick(Qt.Key_Right); keyClick(Qt.Key_Right) }, open: "a", log: ["toggled true"] },
            { tag: "Left", first: "a", act: () => { keyClick(Qt.Key_Left); keyClick(Qt.Key_Left) }, open: "", log: ["toggled false"] },
            { tag: "mirrored", more: "LayoutMirroring.enabled: true; LayoutMirroring.childrenInherit: true", act: () => keyClick(Qt.Key_Left), open: "a", log: ["toggled true"] },
            { tag: "fixed", act: panel => { sections(panel)[0].expandable = false; mouseClick(panel, 100, 16); keyClick(Qt.Key_Right) }, open: "", log: [] },
            { tag: "disabled", act: panel => { sections(panel)[0].enabled = false; mouseClick(panel, 100, 16) }, open: "", log: [] },
            { tag: "right button", act: panel => mouseClick(panel, 100, 16, Qt.RightButton), open: "", log: ["menu"] },
            { tag: "Menu key", act: () => keyClick(Qt.Key_Menu), open: "", log: ["menu"] },
            { tag: "long press", act: panel => { mousePress(panel, 100, 16); wait(600); mouseRelease(panel, 100, 16) }, open: "", log: ["menu"] },
        ]
    }
    function test_clicksAndKeys(data) {
        const panel = accordion("abc", data.more ?? "")
        settle(panel)
        const [a] = sections(panel)
        a.expanded = data.first === "a"
        const log = []
        a.toggled.connect(expanded => log.push("toggled " + expanded))
        a.headerContextMenuRequested.connect(() => log.push("menu"))
        a.forceActiveFocus(Qt.TabFocusReason)
        data.act(panel)
        compare([open(panel), log], [data.open, data.log])
    }

    function test_exclusive() {
        const panel = accordion("abc", "exclusive: true")
        settle(panel)
        for (const section of sections(panel)) {
            section.expanded = true
            compare(open(panel), section.title)
        }
        panel.expandAll()
        compare(open(panel), "c", "refused")
        panel.exclusive = false
        panel.expandAll()
        compare(open(panel), "abc")
        panel.exclusive = true
        compare(open(panel), "a")
        panel.collapseAll()
        compare([open(panel), panel.count], ["", 3])
    }

    function test_focusIsOneStop() {
        const page = make(`Column {
            property alias before: first; property alias panel: inner; property alias after: last
            RButton { id: first; text: 'before' }
            RAccordion { id: inner; width: 280; height: 200; animated: false
                RAccordionItem { title: 'a' }
                RAccordionItem { title: 'b'; RButton { id: inside; text: 'inside' } }
                RAccordionItem { title: 'c' } }
            RButton { id: last; text: 'after' } }`)
        settle(page.panel)
        const [a, b, c] = sections(page.panel)
        page.before.forceActiveFocus(Qt.TabFocusReason)
        const walk = [[Qt.Key_Tab, "a"], [Qt.Key_Down, "b"], [Qt.Key_End, "c"], [Qt.Key_Down, "c"], [Qt.Key_Up, "b"], [Qt.Key_Home, "a"], [Qt.Key_Down, "b"]]
        for (const [key, title] of walk) {
            keyClick(key)
            compare(focused(page.panel), title)
        }
        keyClick(Qt.Key_Tab)
        verify(page.after.activeFocus, "a closed body takes no focus")
        keyClick(Qt.Key_Backtab)
        compare(focused(page.panel), "b", "back where it was")
        b.expanded = true
        keyClick(Qt.Key_Tab)
        verify(b.activeFocus && !b.header.activeFocus, "in the body")
        b.expanded = false
        compare(focused(page.panel), "b", "the body takes the focus along")
        b.destroy()
        settle(page.panel)
        page.before.forceActiveFocus(Qt.TabFocusReason)
        keyClick(Qt.Key_Tab)
        compare(focused(page.panel), "a")
    }

    function test_captions() {
        const panel = accordion("ab|cd|e")
        settle(panel)
        const captions = Array.from(panel.contentItem.contentItem.children[0].children).filter(child => child.collapsed !== undefined)
        const [a, b, c, d, e] = sections(panel)
        const log = logged(captions[0], { toggled: "toggled" })
        c.expanded = true
        c.forceActiveFocus()
        captions[0].collapsed = true
        tryVerify(() => captions[1].y === captions[0].y + 25)
        verify(captions[0].activeFocus, "a hidden header gives the focus to its caption")
        verify(c.visible && !c.header.visible, "a page's own `visible` is left alone")
        keyClick(Qt.Key_Up)
        compare(focused(panel), "b")
        keyClick(Qt.Key_Down)
        keyClick(Qt.Key_Down)
        verify(captions[1].activeFocus)
        keyClick(Qt.Key_Up)
        keyClick(Qt.Key_Right)
        compare(log, ["toggled false"])
        tryVerify(() => c.header.visible && c.height === 132)
        captions[0].collapsible = false
        mouseClick(captions[0])
        compare(captions[0].collapsed, false, "clicks on a plain caption do nothing")
        captions[0].collapsed = true
        settle(panel)
        verify(c.header.visible)
    }

    function test_lazyContent() {
        const panel = make(`RAccordion { width: 280; height: 280; animated: false; property int made: 0; id: page
            RAccordionItem { title: 'a'; lazyContent: Item { implicitHeight: 50; Component.onCompleted: ++page.made } }
            RAccordionItem { title: 'b'; expanded: true; lazyContent: Item { width: 20; implicitHeight: 50; Component.onCompleted: ++page.made } } }`)
        settle(panel)
        const [a, b] = sections(panel)
        compare([panel.made, a.lazyItem, b.lazyItem.width, b.height], [1, null, 20, 98])
        a.expanded = true
        compare([panel.made, a.lazyItem.width], [2, 264])
        const first = a.lazyItem
        a.expanded = false
        compare([first.visible, a.height], [false, 32], "meters in it rest")
        a.expanded = true
        compare([panel.made, a.lazyItem], [2, first])
        a.lazyItem.implicitHeight = 100
        tryCompare(a, "height", 148)
    }

    function test_motion() {
        const panel = accordion("ab", "animated")
        settle(panel)
        const [a] = sections(panel)
        const heights = []
        a.heightChanged.connect(() => heights.push(a.height))
        a.expanded = true
        tryCompare(a, "height", 132)
        verify(heights.length > 2, "in steps")
        a.expanded = false
        a.expanded = true
        tryCompare(a, "height", 132)
    }

    function test_scrollsIntoView() {
        const panel = accordion("abcdefghijkl")
        settle(panel)
        const view = panel.contentItem
        const last = sections(panel)[11]
        last.forceActiveFocus(Qt.TabFocusReason)
        tryVerify(() => view.contentY === 12 * 33 - 1 - 280)
        last.expanded = true
        tryVerify(() => view.contentY === 12 * 33 - 1 + 100 - 280)
        panel.ensureVisible(sections(panel)[0])
        tryCompare(view, "contentY", 0)
        mousePress(panel, 100, 275)
        settle(panel)
        compare(view.contentY, 0, "what is pressed stays under the pointer")
        mouseRelease(panel, 100, 275)
    }

    function grip(panel: Item, index: int): point {
        const header = sections(panel)[index].header
        return header.mapToItem(panel, header.width - 16, 16)
    }

    /*! Drags a section's grip by so many pixels and leaves it held. */
    function lift(panel: Item, index: int, dy: real) {
        const from = grip(panel, index)
        mousePress(panel, from.x, from.y)
        mouseMove(panel, from.x, from.y + 6 * Math.sign(dy))
        mouseMove(panel, from.x, from.y + dy)
    }

    /*! What is above everything in the window: pictures that are dragged, and lines. */
    function floating(): var {
        let top = root
        while (top.parent)
            top = top.parent
        return Array.from(top.children).filter(child => child.z > 1000000)
    }

    function line(): var {
        return floating().find(child => child.ssBorderColor !== undefined)
    }

    function ghosts(): int {
        return floating().filter(child => child !== line()).length
    }

    function test_moves_data() {
        return [
            { tag: "down", index: 1, dy: 70, moved: [[1, 3]], order: "acdbefgh" },
            { tag: "up", index: 2, dy: -70, moved: [[2, 0]], order: "cabdefgh" },
            { tag: "to its own place", index: 2, dy: 12, moved: [] },
            { tag: "outside", index: 0, dy: 500, moved: [] },
            { tag: "Esc", index: 1, dy: 66, act: () => keyClick(Qt.Key_Escape), moved: [] },
            { tag: "another row goes first", index: 2, dy: 70, act: panel => panel.model.remove(0), moved: [[1, 4]], order: "bdefcgh" },
            { tag: "the row itself goes", index: 2, dy: 66, act: panel => panel.model.remove(2), moved: [] },
            { tag: "all rows go", index: 2, dy: 66, act: panel => panel.model.clear(), moved: [] },
        ]
    }
    function test_moves(data) {
        const panel = listed()
        settle(panel)
        const moved = []
        panel.itemMoved.connect((from, to) => { moved.push([from, to]); panel.model.move(from, to, 1) })
        lift(panel, data.index, data.dy)
        compare(ghosts(), 1)
        verify(!sections(panel)[data.index].header.RStyleSet.stateHelper.hovered, "in its picture, too")
        verify(!line()?.visible || floating().every(child => child.z <= line().z), "nothing covers the line")
        if (data.act)
            data.act(panel)
        settle(panel)
        const end = 16 + 33 * data.index + data.dy
        mouseMove(panel, panel.width - 16, end)
        mouseRelease(panel, panel.width - 16, end)
        compare(moved, data.moved)
        tryVerify(() => ghosts() === 0)
        verify(!line()?.visible)
        if (data.order)
            compare(titles(panel), data.order)
    }

    function test_pointerChangesTheHeaderOnly() {
        const panel = accordion("ab", "")
        const section = sections(panel)[0]
        section.expanded = true
        const inBody = findChild(section, "in body").RStyleSet.props
        const former = inBody.color("foreground-dragHandle")
        mouseMove(section.header, 100, 16)
        compare([section.ssBackground.toString(), section.ssForegroundDragHandle.toString()], ["#005691", "#c8dcec"])
        compare(inBody.color("foreground-dragHandle"), former)
        section.RStyleSet.name = "loud"
        compare(section.header.RStyleSet.name, "loud")
    }

    function test_onlyTheGripDrags() {
        const panel = listed()
        settle(panel)
        mousePress(panel, 100, 16)
        mouseMove(panel, 100, 60)
        mouseMove(panel, 100, 90)
        compare(ghosts(), 0)
        mouseRelease(panel, 100, 90)
        sections(panel)[0].draggable = false
        lift(panel, 0, 60)
        compare(ghosts(), 0)
        mouseRelease(panel, 264, 76)
    }

    function test_fingerDragsTheGrip() {
        const panel = listed()
        settle(panel)
        const from = grip(panel, 0)
        touchEvent(panel).press(0, panel, from.x, from.y).commit()
        // Moves of a finger are delivered with the next frame.
        for (const dy of [8, 16, 40, 80]) {
            touchEvent(panel).move(0, panel, from.x, from.y + dy).commit()
            wait(20)
        }
        compare([ghosts(), panel.contentItem.contentY], [1, 0])
        verify(line().visible)
        touchEvent(panel).release(0, panel, from.x, from.y + 80).commit()
        tryVerify(() => ghosts() === 0)
    }

    function test_movesByKeys() {
        const panel = listed()
        settle(panel)
        const moved = []
        panel.itemMoved.connect((from, to) => { moved.push([from, to]); panel.model.move(from, to, 1) })
        sections(panel)[1].forceActiveFocus()
        for (const key of [Qt.Key_Up, Qt.Key_Up, Qt.Key_Down])
            keyClick(key, Qt.AltModifier)
        compare([moved, titles(panel), focused(panel)], [[[1, 0], [0, 1]], "abcdefgh", "b"])
        panel.reorderable = false
        keyClick(Qt.Key_Down, Qt.AltModifier)
        compare(moved.length, 2)
    }

    function test_headerContent() {
        const panel = make(`RAccordion { width: 280; height: 200; animated: false
            RAccordionItem { title: 'a'; subtitle: 'b'; iconKey: 'mute'; headerContent: RButtonIcon { width: 32; label: 'Mute'; iconItem.key: 'mute'; selectable: true } } }`)
        settle(panel)
        const [a] = sections(panel)
        const button = a.headerContent[0]
        mouseClick(button)
        compare([button.selected, a.expanded], [true, false])
        button.forceActiveFocus()
        keyClick(Qt.Key_Return)
        keyClick(Qt.Key_Right)
        compare(a.expanded, false, "keys of the button are not the header's")
        keyClick(Qt.Key_F2)
        compare(button.mapToItem(panel, 32, 0).x, 272)
    }

    /*! The lines of a header stand close together in its middle, in whatever size they are. */
    function test_twoLines() {
        const panel = make(`RAccordion { width: 280; height: 200; animated: false
            RAccordionItem { title: 'a'; subtitle: 'b' } }`)
        settle(panel)
        const header = sections(panel)[0].header
        const [title, subtitle] = ["a", "b"].map(text => Array.from(header.children).find(child => child.text === text))
        for (const size of [title.font.pixelSize, 16]) {
            title.font.pixelSize = size
            compare([title.height, subtitle.height, subtitle.y], [title.implicitHeight, subtitle.implicitHeight, title.y + title.height])
            fuzzyCompare(title.y + subtitle.y + subtitle.height, header.height, 2)
        }
    }

    function test_goneInAHandler_data() {
        return [
            { tag: "itself", act: (panel, index) => panel.model.remove(index) },
            { tag: "all", act: panel => panel.model.clear() },
            { tag: "moved", act: (panel, index) => panel.model.move(index, 0, 1) },
            { tag: "the accordion", act: panel => panel.destroy() },
        ]
    }
    function test_goneInAHandler(data) {
        for (const name of ["itemExpanded", "expandedItemsChanged", "toggled"]) {
            const panel = listed("exclusive: true; property bool once: true")
            settle(panel)
            sections(panel)[0].expanded = true
            const target = name === "toggled" ? sections(panel)[3] : panel
            target[name].connect(() => {
                if (panel && panel.once) {
                    panel.once = false
                    data.act(panel, 3)
                }
            })
            mouseClick(panel, 100, 100 + 33 * 3 + 16)
            wait(20)
        }
    }

    function test_speech() {
        const panel = accordion("a|b")
        const [a] = sections(panel)
        compare(a.header.text, "a")
        a.title = "Aux & Mix"
        compare(a.header.plainText, "Aux & Mix")
    }
}
