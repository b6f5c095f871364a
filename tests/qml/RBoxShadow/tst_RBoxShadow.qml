import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RBoxShadow"

    readonly property bool shaders: root.GraphicsInfo.api !== GraphicsInfo.Software

    /*! A box on a white square, with what stands in it and beside it. */
    function scene(inside: string, beside: string): var {
        return make("Rectangle { width: 100; height: 100; readonly property Item shadow: boxShadow; readonly property Item box: target\n" +
            "Rectangle { id: target; x: 20; y: 30; z: 3; width: 60; height: 40; " + inside + " }\n" + beside + " }")
    }
    function makeParent(): var {
        return scene("RBoxShadow { id: boxShadow; spread: 8; darkness: 0.5; offsetY: 0 }", "")
    }
    function makeSibling(): var {
        return scene("color: '#ff0000'", "RBoxShadow { id: boxShadow; target: target; offsetX: 5 }")
    }

    /*! Grey that black of alpha darkness * (1 - distance / spread)^2 leaves of white; pixels lie half a unit off. */
    function test_fade_data() {
        return [
            { tag: "beside the edge", x: 80, y: 50, grey: 143 }, // 0.5 * (7.5 / 8)^2 = 0.439
            { tag: "half way", x: 84, y: 50, grey: 231 }, // 0.5 * (3.5 / 8)^2 = 0.0957
            { tag: "around the corner", x: 83, y: 73, grey: 237 }, // distance 4.95: 0.5 * 0.381^2 = 0.0727
            { tag: "beyond", x: 89, y: 50, grey: 255 },
            { tag: "inside", x: 50, y: 50, grey: 255 },
            { tag: "offset", x: 50, y: 74, offsetY: 4, grey: 143 },
            { tag: "inactive", x: 80, y: 50, active: false, grey: 255 },
            { tag: "no spread", x: 80, y: 50, spread: 0, grey: 255 },
            { tag: "no darkness", x: 80, y: 50, darkness: 0, grey: 255 }
        ]
    }
    function test_fade(row) {
        if (!root.shaders)
            skip("a border stands in")
        const scene = makeParent()
        for (const property of ["offsetY", "active", "spread", "darkness"])
            scene.shadow[property] = row[property] ?? scene.shadow[property]
        fuzzyCompare(grabImage(scene).red(row.x, row.y), row.grey, 2)
    }

    function test_followsItsTarget() {
        const scene = makeParent()
        scene.box.width = 70
        compare([scene.shadow.x, scene.shadow.y, scene.shadow.z, scene.shadow.width], [0, 0, -1, 70])
        const shadow = makeSibling().shadow
        compare([shadow.x, shadow.y, shadow.z, shadow.width, shadow.height], [25, 32, 3, 60, 40])
        compare(shadow.darkness, 32 / 255, "as the style's colour says")
        shadow.target = null
        compare([shadow.width, shadow.shown], [0, false])
    }

    function test_takesNoPlace_data() {
        return Array.from(["Row", "Column", "Grid", "Flow", "RowLayout", "ColumnLayout", "GridLayout"], tag => ({ tag }))
    }
    function test_takesNoPlace(row) {
        const positioner = make("import QtQuick.Layouts\n" + row.tag + " { readonly property Item shadow: boxShadow; RBoxShadow { id: boxShadow; target: box; offsetY: 0 } Item { id: box; implicitWidth: 60; implicitHeight: 40 } }")
        waitForRendering(positioner)
        compare([positioner.width, positioner.height], [60, 40])
        compare([positioner.shadow.x, positioner.shadow.y, positioner.shadow.width], [0, 0, 60])
    }

    function test_siblingIsBetweenParentAndTarget() {
        const image = grabImage(makeSibling())
        verify(image.red(80, 50) < 255, "above what the parent paints")
        compare(image.pixel(79, 50), "#ff0000", "below the target")
    }

    function test_borderWithoutShaders() {
        if (root.shaders)
            skip("the shadow is drawn")
        const image = grabImage(makeParent())
        fuzzyCompare(image.red(80, 50), 223, 2) // #20000000 on white
        compare(image.red(81, 50), 255)
    }
}
