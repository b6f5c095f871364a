import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RIcon"

    /*! An icon on a ground of its size. */
    function makePair(): var {
        return make("Rectangle { width: 48; height: 48; color: '#204060'; readonly property Item icon: shape\nRIcon { id: shape; sizeClass: 'L' } }")
    }

    function test_sizeClasses_data() {
        return [
            { tag: "XXS", zoom: 1, size: 8, file: "8x8" },
            { tag: "XS", zoom: 1, size: 16, file: "16x16" },
            { tag: "S", zoom: 2, size: 48, file: "24x24" },
            { tag: "M", zoom: 1, size: 32, file: "32x32" },
            { tag: "L", zoom: 1.5, size: 72, file: "48x48" },
            { tag: "unknown", zoom: 1, size: 24, file: "24x24" }
        ]
    }
    function test_sizeClasses(row) {
        theme.setDpZoomFactor(row.zoom)
        const icon = make("RIcon { key: 'settings'; sizeClass: '" + row.tag + "' }")
        compare([icon.width, icon.height], [row.size, row.size])
        compare([icon.imgWidth, icon.imgHeight], [row.size, row.size])
        compare(icon.source, "qrc:/icons/settings_" + row.file + ".png")
        theme.setDpZoomFactor(0)
        icon.key = ""
        compare(String(icon.source), "")
    }

    /*! The corner flag covers the top left of its square and nothing of the bottom right. */
    function test_colours_data() {
        return [
            { tag: "style, dark", sheet: "dark", shape: "#efefef" },
            { tag: "style, light", sheet: "light", shape: "#5a5a5a" },
            { tag: "page", colour: "#ff0000", shape: "#ff0000" },
            { tag: "half transparent", colour: "#80ff0000", shape: "#902030" },
            { tag: "picture's own", colour: "#ff0000", overlay: false, shape: "#ffffff" }
        ]
    }
    function test_colours(row) {
        root.sheet = row.sheet ?? "dark"
        const pair = makePair()
        pair.icon.key = "corner-flag"
        if (row.colour)
            pair.icon.ssIconForeground = row.colour
        pair.icon.useColorOverlay = row.overlay ?? true
        let picture = grabImage(pair)
        fuzzyCompare(picture.pixel(8, 8), row.shape, 2)
        fuzzyCompare(picture.pixel(44, 44), "#204060", 2)

        pair.icon.ssIconForeground = "#00ff00"
        pair.icon.useColorOverlay = true
        picture = grabImage(pair)
        fuzzyCompare(picture.pixel(8, 8), "#00ff00", 2)
    }

    function test_sharpWhenEnlarged() {
        const pair = makePair()
        pair.icon.sizeClass = "S"
        pair.icon.key = "grid"
        theme.setDpZoomFactor(2)
        pair.icon.ssIconForeground = "white"
        const enlarged = grabImage(pair)
        theme.setDpZoomFactor(0)
        pair.icon.source = "qrc:/icons/grid_48x48.png"
        pair.icon.sizeClass = "L"
        const drawn = grabImage(pair)
        let different = 0
        for (let x = 0; x < 48; ++x)
            different += Math.abs(enlarged.red(x, 20) - drawn.red(x, 20)) > 32 ? 1 : 0
        compare(different, 0)
    }
}
