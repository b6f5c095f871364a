import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

/*! Items that draw geometry of their own look alike in every renderer: run with shaders and with the software renderer,
    at one and at two device pixels per pixel. */
ThemedTestCase {
    id: root
    name: "Drawing"

    function graph(width: real, y: real, color: string): string {
        return `RGraphPlotter { anchors.fill: parent; lineWidth: ${width}; color: '${color}'; values: [Qt.point(0, ${y}), Qt.point(1, ${y})] }`
    }

    /*! A part of a plot over 0 to 10, up to a level of 10, still open for what it has of its own. */
    function part(type: string, yMinimum: real): string {
        return type + " { anchors.fill: parent; xMinimum: 0; xMaximum: 10; xAxisScale: RBodeplotAxisScaleEnum.LINEAR\n" +
            "yMinimum: " + yMinimum + "; yMaximum: 10; style: QtObject {\n" +
            "property color curveColor: '#ff0000'; property real curveLineWidth: 4\n" +
            "property color lineColorVertical: '#0000ff'; property color lineColorHorizontal: '#00ff00'\n" +
            "property color lineColorXAchsis: '#ff0000'; property real lineWidthXAchsis: 4\n" +
            "property real lineWidthVertical: 2; property real lineWidthHorizontal: 2 }\n"
    }

    /*! The content on a white square of 100 x 100. */
    function scene(content: string): var {
        return make("Rectangle { width: 100; height: 100; " + content + "}")
    }

    // Of a picture of the whole case: the software renderer's do not tell how many device pixels a pixel has, so of a
    // smaller item only a corner would be cut out.
    function pixelOf(image: var, x: real, y: real): color {
        const ratio = root.Screen.devicePixelRatio
        return image.pixel((x + 0.5) * ratio, (y + 0.5) * ratio)
    }

    function test_pixels_data() {
        const white = "#ffffff"
        const red = "#ff0000"
        const green = "#00ff00"
        const blue = "#0000ff"
        return [
            { tag: "standing meter", content: "RMeter { width: 20; height: 100; paddingTop: 0; paddingBottom: 0; value: -37 }", pixels: [[10, 97, "#77be1e"], [10, 55, "#77be1e"], [10, 45, "#191919"], [30, 97, white]] },
            { tag: "lying meter", content: "RMeter { horizontal: true; width: 100; height: 20; value: 6 }", pixels: [[40, 10, "#77be1e"], [85, 10, "#f9af3c"], [98, 10, "#e10014"], [40, 30, white]] },
            { tag: "wide line", content: graph(4, 0.5, red), pixels: [[1, 50, red], [98, 48, red], [50, 51, red], [50, 46, white], [50, 53, white]] },
            { tag: "thin line", content: graph(1, 0.505, red), pixels: [[50, 50, red], [50, 48, white], [50, 52, white]] },
            { tag: "faint line", content: "color: '#000000'; Item { anchors.fill: parent; opacity: 0.5; " + graph(4, 0.5, "#80ff0000") + "}", pixels: [[50, 50, "#400000"], [50, 40, "#000000"]] },
            { tag: "cut line", content: "Item { width: 50; height: 100; clip: true; Item { width: 100; height: 100; " + graph(4, 0.5, red) + "} }", pixels: [[48, 50, red], [51, 50, white]] },
            { tag: "upright lines", content: "RLinePlotter { anchors.fill: parent; orientation: RLinePlotter.Vertical; values: [0, 0.5]; color: '#0000ff'; lineWidth: 4 }", pixels: [[0, 20, blue], [50, 80, blue], [54, 80, white]] },
            { tag: "grid", content: "RGrid { anchors.fill: parent; frameVisible: true; horizontal: RGridLayout { positions: [0.5]; color: '#00ff00'; lineWidth: 2; majorColor: '#ff0000'; majorLineWidth: 2 } }", pixels: [[50, 50, green], [50, 0, red], [99, 20, red], [50, 30, white]] },
            { tag: "plot grid", content: part("RBodeplotGridTemplate", -10) + "xIncrement: 5; yIncrement: 5; dedicatedXAxisLine: true }", pixels: [[50, 10, blue], [20, 75, green], [20, 50, red], [20, 60, white]] },
            { tag: "simple curve", content: part("RSimpleCurveTemplate", -10) + "points: [Qt.point(0, 0), Qt.point(10, 0)] }", pixels: [[20, 50, red], [20, 60, white]] },
            { tag: "limiter curve", content: part("RLimiterCurveTemplate", 0) + "threshold: 5 }", pixels: [[25, 75, red], [80, 50, red], [80, 40, white]] },
            { tag: "response curve", content: "RBodeplotCurveTemplate { x: 10; width: 80; height: 100; yMinimum: -20; yMaximum: 20; trim: 10; style: QtObject {\n" +
                "property color aggregatedCurveColor: '#ff0000'; property color aggregatedAreaColor: '#0000ff'; property real aggregatedCurveLineWidth: 4\n" +
                "property real areaSaturationNearAggregatedCurve: 1; property real areaSaturationNearxAchsis: 0 } }", pixels: [[50, 25, red], [50, 37, "#8080ff"], [50, 60, white], [5, 25, white], [95, 25, white]] },
        ]
    }
    function test_pixels(data) {
        scene(data.content)
        const image = grabImage(root)
        for (const [x, y, expected] of data.pixels) {
            const color = pixelOf(image, x, y)
            const wanted = Qt.color(expected)
            const distance = Math.hypot(color.r - wanted.r, color.g - wanted.g, color.b - wanted.b)
            verify(distance < 0.03, `${color} instead of ${expected} at ${x}, ${y}`)
        }
    }

    function test_changesAreDrawn() {
        const line = scene(graph(4, 0.5, "#ff0000")).children[0]
        const drawn = y => String(pixelOf(grabImage(root), 50, y))
        compare(drawn(50), "#ff0000")
        line.color = "#0000ff"
        compare(drawn(50), "#0000ff")
        line.values = [Qt.point(0, 0.2), Qt.point(1, 0.2)]
        compare([drawn(50), drawn(20)], ["#ffffff", "#0000ff"])
        line.lineWidth = 0.5
        line.lineWidth = 6
        compare([drawn(18), drawn(22)], ["#0000ff", "#0000ff"])
        line.anchors.fill = undefined
        line.height = 0
        compare(drawn(20), "#ffffff")
    }
}
