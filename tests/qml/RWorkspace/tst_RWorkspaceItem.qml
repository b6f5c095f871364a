import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

/*! Items in a view of 300 by 200 pixels; the plane's origin is at its top left. */
ThemedTestCase {
    id: root
    name: "RWorkspaceItem"

    function workspaceOf(items: string): var {
        const workspace = make("RWorkspace { width: 300; height: 200; " + items + " }")
        waitForRendering(workspace)
        return workspace
    }

    function itemOf(body: string): var {
        return workspaceOf("RWorkspaceItem { " + body + " }").items[0]
    }

    /*! What an item has made of itself: its children but the page's content. */
    function partsOf(item: var): var {
        return Array.from(item.children).filter(child => child !== item.contentItem)
    }

    function test_size_data() {
        return [
            { tag: "title: ''", size: [96, 64] },
            { tag: "valueBar: RWorkspaceItemValueBar {}", size: [96, 64] },
            { tag: "Rectangle { width: 200; height: 100 }", size: [200, 124] },
            { tag: "Rectangle { x: 10; y: 20; width: 200; height: 100 }", size: [210, 144] },
            { tag: "valueBar: RWorkspaceItemValueBar {} Rectangle { width: 20; height: 100 }", size: [96, 130] },
            { tag: "Rectangle { anchors.fill: parent }", size: [96, 64] },
            { tag: "size: Qt.size(120, 80); Rectangle { width: 200; height: 100 }", size: [120, 80] }
        ]
    }
    function test_size(row) {
        const item = itemOf(row.tag)
        compare([item.width, item.height], row.size)
        if (item.valueBarItem)
            compare([item.valueBarItem.width, item.valueBarItem.mapToItem(item, 0, 6).y], [item.width, item.height])
    }

    function test_isNotItsOwnContent() {
        const item = itemOf("")
        item.contentItem = item
        item.width = 200
        compare(item.contentItem, null)
    }

    function test_partsAreMadeInView() {
        const workspace = workspaceOf("RWorkspaceItem { title: 'Amp'; iconKey: 'mute'; position: Qt.point(1000, 0); valueBar: RWorkspaceItemValueBar { value: 1 } Item { id: own } property Item own: own }")
        const item = workspace.items[0]
        compare(partsOf(item).length, 0)
        compare(item.valueBarItem, null)
        workspace.viewX = 1000
        tryVerify(() => item.valueBarItem !== null)
        const bar = item.valueBarItem
        verify(bar.visible && item.own.visible)
        workspace.viewX = 0
        tryVerify(() => !bar.visible && !item.own.visible)
        verify(item.visible)
        workspace.viewX = 1000
        tryVerify(() => bar.visible && item.own.visible)
        compare(item.valueBarItem, bar)
    }

    function test_littleAtASmallZoom() {
        const workspace = workspaceOf("RWorkspaceItem { title: 'Amp'; locked: true; valueBar: RWorkspaceItemValueBar {} Item { id: own } property Item own: own }")
        const item = workspace.items[0]
        tryVerify(() => item.valueBarItem !== null)
        const title = findText(item, "Amp")
        const size = title.font.pixelSize
        for (const [zoom, isDetailed] of [[0.39, false], [0.4, true]]) {
            workspace.zoom = zoom
            tryCompare(item, "detailed", isDetailed)
            compare([item.valueBarItem.visible, item.own.visible, title.font.pixelSize > size], [isDetailed, isDetailed, !isDetailed])
            compare(iconsOf(item).length, isDetailed ? 1 : 0)
        }
    }

    function findText(item: var, text: string): var {
        if (item.text === text)
            return item
        for (const child of Array.from(item.children)) {
            const found = findText(child, text)
            if (found)
                return found
        }
        return null
    }

    /*! The pictures that are shown, from the left. */
    function iconsOf(item: Item): var {
        const icons = Array.from(partsOf(item)[0].children).filter(child => child.source !== undefined && child.visible)
        return icons.sort((a, b) => a.x - b.x).map(icon => String(icon.source).replace(/.*\/([a-z-]*)_.*/, "$1"))
    }

    function test_header_data() {
        return [
            { tag: "nothing", body: "iconKey: ''", icons: [] },
            { tag: "icon", body: "iconKey: 'mute'", icons: ["mute"] },
            { tag: "status", body: "statusIconKey: 'warning'", icons: ["warning"] },
            { tag: "all", body: "iconKey: 'mute'; statusIconKey: 'warning'; locked: true", icons: ["mute", "warning", "lock"] }
        ]
    }
    function test_header(row) {
        const item = itemOf(row.body + " ; title: 'A title that is far too long for this header'")
        compare(iconsOf(item), row.icons)
        const title = findText(item, item.title)
        for (const icon of Array.from(partsOf(item)[0].children).filter(child => child.source !== undefined))
            verify(icon.x + icon.width <= title.x || icon.x >= title.x + title.width)
        verify(title.x >= 0 && title.x + title.width <= item.width && title.truncated)
        item.title = "A"
        verify(!title.truncated && title.width < 20)
    }

    // What is laid out while nobody sees it is right when somebody does.
    function test_headerMadeOutOfView() {
        const workspace = workspaceOf("RWorkspaceItem { title: 'Amp'; iconKey: 'mute'; statusIconKey: 'warning' }")
        const item = workspace.items[0]
        workspace.viewX = 1000
        tryVerify(() => !item.inView)
        root.sheet = "light"
        item.title = "Amplifier"
        workspace.viewX = 0
        tryVerify(() => item.inView)
        const title = findText(item, "Amplifier")
        const icons = Array.from(partsOf(item)[0].children).filter(child => child.source !== undefined)
        compare(icons.map(icon => icon.x + icon.width <= title.x).sort(), [false, true])
    }

    // Where little is drawn, what needs attention is, and large.
    function test_statusAtASmallZoom() {
        const item = itemOf("title: 'Amp'; iconKey: 'mute'")
        item.workspace.zoom = 0.2
        tryVerify(() => !item.detailed)
        const title = findText(item, "Amp")
        compare([iconsOf(item), title.visible], [["mute"], true])
        item.statusIconKey = "warning"
        compare([iconsOf(item), title.visible], [["warning"], false])
        item.statusIconKey = ""
        compare([iconsOf(item), title.visible], [["mute"], true])
    }

    function test_states() {
        const item = itemOf("title: 'Amp'")
        const workspace = item.workspace
        const plain = String(item.ssBackground)
        mouseMove(workspace, 20, 40)
        mouseClick(workspace, 20, 40)
        tryCompare(item.RStyleSet, "state", "hovered selected focus ")
        verify(String(item.ssBackground) !== plain)
        const picture = grabImage(item)
        for (const [x, y, name] of [[1, 30, "ssBorderColor"], [4, 4, "ssBorderColor"], [91, 59, "ssBorderColor"], [4, 30, "ssBackground"]])
            compare(String(picture.pixel(x, y)), String(item[name]), [x, y])
        item.enabled = false
        verify(item.RStyleSet.stateHelper.disabled)
    }

    function test_styledByItsPlace() {
        const item = make("RWorkspaceItem { property Item box: Item {} }")
        const namesOf = () => item.RStyleSet.path.map(element => String(element.classes)).join(" ")
        const places = make("Item { property Item first: Item { RStyleSet.name: 'first' }\n"
                            + "property Item second: Item { RStyleSet.name: 'second' } }")
        for (const place of [places.first, places.second]) {
            place.parent = root
            item.parent = place
            verify(namesOf().includes(place.RStyleSet.name), namesOf())
        }
        // Below an item without a style that gets its parent later.
        item.parent = item.box
        item.box.parent = places.first
        verify(namesOf().includes("first"), namesOf())
    }

    function test_valueBar() {
        const item = itemOf("")
        const bars = Array.from([0, 1], () => createTemporaryObject(barComponent, root))
        for (const component of [bars[0].bar, bars[1].bar, null]) {
            item.valueBar = component
            waitForRendering(item)
            compare(item.valueBarItem === null, component === null)
        }
        ignoreWarning(/RWorkspaceItem has no value bar/)
        item.valueBar = createTemporaryObject(barComponent, root).noItem
        compare(item.valueBarItem, null)
    }

    Component {
        id: barComponent
        QtObject {
            property Component bar: RWorkspaceItemValueBar {}
            property Component noItem: QtObject {}
        }
    }
}
