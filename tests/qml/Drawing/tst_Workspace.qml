import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

/*! What a canvas shows looks alike in every renderer: run as the other drawing. The canvas has 300 by 200 pixels. */
ThemedTestCase {
    id: root
    name: "WorkspaceDrawing"

    function workspaceOf(body: string): var {
        const workspace = make("RWorkspace { width: 300; height: 200; gridVisible: false; " + body + " }")
        waitForRendering(workspace)
        return workspace
    }

    /*! Colours at places, by what is read off the whole case: smaller items are cut wrongly in some renderers. */
    function picture(): var {
        const image = grabImage(root)
        const ratio = root.Screen.devicePixelRatio
        return (x, y) => String(image.pixel((x + 0.5) * ratio, (y + 0.5) * ratio))
    }

    function compareColors(places: var, colors: var): void {
        const colorAt = picture()
        for (const [x, y, name] of places)
            compare(colorAt(x, y), String(Qt.color(colors[name])), name + " at " + [x, y])
    }

    /*! An item at 40, 40 with a value bar that is half lit, in front of another one at its bottom right. */
    function itemOf(): var {
        const bar = "valueBar: RWorkspaceItemValueBar { value: 50; delimiterValue: 75 }"
        const colors = "ssBackground: 'gray'; ssBorderColor: 'yellow'; "
        return workspaceOf("RWorkspaceItem { position: Qt.point(100, 80); ssBackground: 'green' } RWorkspaceItem { position: Qt.point(40, 40); " + colors + bar + " }").items[1]
    }

    function test_block_data() {
        const sides = [[40, 60, "border"], [135, 60, "border"], [90, 40, "border"], [90, 103, "border"]]
        const marks = [[44, 44, "border"], [131, 44, "border"], [44, 99, "border"], [131, 99, "border"]]
        const bar = [[50, 99, "bar"], [86, 101, "bar"], [90, 101, "trough"], [112, 101, "mark"], [120, 101, "trough"]]
        const ground = [[42, 60, "ground"], [50, 43, "ground"], [120, 90, "ground"], [150, 120, "other"]]
        return [
            { tag: "plain", selected: false, places: [...sides, ...bar, ...ground, [41, 60, "ground"], [44, 44, "ground"], [44, 96, "ground"]] },
            { tag: "selected", selected: true, places: [...sides, ...bar, ...ground, ...marks, [41, 60, "border"], [90, 102, "border"]] }
        ]
    }
    function test_block(row) {
        const item = itemOf()
        if (row.selected)
            item.workspace.selection.select(item)
        const bar = item.valueBarItem
        compareColors(row.places, { border: "yellow", ground: "gray", other: "green", bar: bar.ssBackgroundBar, trough: bar.ssBackground, mark: bar.ssBackgroundDelimiter })
    }

    // Lines are a pixel wide, or a little more, where a unit is less. Some renderers blend them with what is beside.
    function test_linesAtAnyZoom_data() {
        return Array.from([0.2, 0.3, 0.45, 0.6, 0.75, 0.9], zoom => ({ tag: String(zoom), zoom: zoom }))
    }
    function test_linesAtAnyZoom(row) {
        const item = itemOf()
        const workspace = item.workspace
        workspace.zoom = row.zoom
        waitForRendering(workspace)
        const colorAt = picture()
        const pixel = place => Math.floor(place * row.zoom)
        const count = (length, isLine) => Array.from({ length: length }, (_, i) => i).filter(isLine).length
        const isBorder = color => Qt.color(color).r - Qt.color(color).b > 0.2
        const across = count(190, x => isBorder(colorAt(x, pixel(72))))
        const down = count(140, y => isBorder(colorAt(pixel(60), y)))
        verify(across >= 2 && across <= 4 && down >= 2 && down <= 4, [across, down])
        const reds = Array.from({ length: 20 }, (_, i) => Qt.color(colorAt(pixel(104 + i), pixel(100))).r).sort((a, b) => a - b)
        verify(!item.detailed || reds[19] > reds[10] + 0.15, reds)
    }

    function test_guides() {
        const workspace = workspaceOf("RWorkspaceItem { position: Qt.point(8, 8) } RWorkspaceItem { position: Qt.point(120, 74) }")
        const colors = { plane: workspace.ssBackground }
        mousePress(workspace, 150, 94)
        for (const x of [100, 41])
            mouseMove(workspace, x, 94)
        const at = workspace.guides[0].position
        const guideIsAt = y => [at - 1, at - 0.5, at].some(x => picture()(x, y) === String(workspace.ssGuideColor))
        verify(guideIsAt(60) && guideIsAt(145))
        compareColors([[at - 4, 145, "plane"], [at + 3, 145, "plane"]], colors)
        mouseRelease(workspace, 41, 94)
        compareColors([[at - 1, 145, "plane"], [at, 145, "plane"]], colors)
    }

    function test_focus() {
        const workspace = workspaceOf("RWorkspaceItem { position: Qt.point(40, 40) }")
        const colors = { focus: workspace.ssGuideColor, plane: workspace.ssBackground }
        workspace.forceActiveFocus()
        compareColors([[0, 60, "focus"], [150, 0, "focus"], [37, 60, "plane"]], colors)
        keyClick(Qt.Key_Tab)
        for (const zoom of [1, 0.5, 2]) {
            workspace.zoom = zoom
            workspace.viewX = workspace.viewY = 0
            compareColors([[0, 60, "plane"], [40 * zoom - 3, 60 * zoom, "focus"], [40 * zoom - 2, 60 * zoom, "plane"]], colors)
        }
    }
}
