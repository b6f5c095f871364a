import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RSelectionRect"

    function test_geometry_data() {
        return [
            { tag: "down right", start: Qt.point(10, 20), end: Qt.point(40, 60) },
            { tag: "up left", start: Qt.point(40, 60), end: Qt.point(10, 20) },
            { tag: "across", start: Qt.point(40, 20), end: Qt.point(10, 60) },
        ]
    }
    function test_geometry(data) {
        const band = make("RSelectionRect { active: true }")
        band.start = data.start
        band.end = data.end
        compare([band.x, band.y, band.width, band.height], [10, 20, 30, 40])
    }
}
