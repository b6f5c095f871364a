import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RAxisNumbering"

    function numbersOf(axis: Item): var {
        return Array.from(axis.children).filter(child => child.text !== undefined)
    }

    function test_numbers_data() {
        return [
            { tag: "all", body: "width: 400", texts: "-60 -50 -40 -30 -20 -10 0 10 20" },
            { tag: "those with room", body: "width: 50; unit: 'dBu'", texts: "-60 20 dBu" },
            { tag: "standing", body: "orientation: Qt.Vertical; height: 300; step: 40; unit: 'dB'", texts: "-40 0 dB" },
            { tag: "decimals", body: "width: 400; step: 40; decimals: 1", texts: "-40.0 0.0" },
            { tag: "no range", body: "width: 400; from: 20", texts: "" },
            { tag: "no number", body: "width: 400; from: NaN", texts: "" },
        ]
    }
    function test_numbers(data) {
        const axis = make("RAxisNumbering {" + data.body + "}")
        const numbers = numbersOf(axis)
        compare(numbers.map(number => number.text).join(" "), data.texts)
        for (const number of numbers) {
            verify(number.x >= 0 && number.x + number.width <= axis.width + 1, number.text)
            verify(number.y >= 0 && number.y + number.height <= axis.height + 1, number.text)
        }
    }

    function test_fontSize_data() {
        return [
            { tag: "given", size: 9.6, pixels: 10 },
            { tag: "gigantic", size: 1e9, pixels: 1000 },
            { tag: "none", size: 0, pixels: 1 },
            { tag: "no number", size: NaN, pixels: 1 },
        ]
    }
    function test_fontSize(data) {
        const axis = make("RAxisNumbering { width: 400 }")
        axis.fontSize = data.size
        compare(numbersOf(axis)[0].font.pixelSize, data.pixels)
        const frame = make("RBodeplotAxis { width: 400 }")
        frame.fontSizeAxis = data.size
        tryVerify(() => numbersOf(frame).length > 0)
        compare(numbersOf(frame)[0].font.pixelSize, data.pixels)
    }

    function test_gridLines_data() {
        return [
            { tag: "default", body: "", columns: 9, rows: 9, zero: 1 },
            { tag: "steps", body: "xStep: 20; yStep: 40", columns: 5, rows: 2, zero: 1 },
            { tag: "no zero inside", body: "yFrom: 10", columns: 9, rows: 2, zero: 0 },
            { tag: "no range", body: "xFrom: NaN; yTo: -60", columns: 0, rows: 0, zero: 0 },
        ]
    }
    function test_gridLines(data) {
        const grid = make("RPlotGrid { width: 240; height: 240; " + data.body + "}")
        compare(Array.from(grid.children, lines => lines.values.length), [data.columns, data.rows, data.zero])
    }
}
