import QtQuick
import QtTest
import TambleClient.Control 1.0

/*! Panels of dynamics, whose plots are 240 pixels wide and high: 3 pixels per dB, on the gain axis of the ANC 6. */
ThemedTestCase {
    id: root

    readonly property var panels: ["RLimiter", "RCompressor", "RAGC", "RANC", "RDucker", "RGate"]

    /*! What the panel says about one parameter: "edited -5", "committed -5", "canceled". */
    function logOf(panel: Item, parameter: string): var {
        return logged(panel, { [parameter + "Edited"]: "edited", [parameter + "Committed"]: "committed", editCanceled: "canceled" })
    }

    function centreOf(panel: Item, parameter: string): point {
        const handle = findChild(panel, parameter)
        const centre = handle.mapToItem(panel, handle.width / 2, handle.height / 2)
        return Qt.point(Math.round(centre.x), Math.round(centre.y))
    }

    function press(panel: Item, parameter: string): point {
        const centre = centreOf(panel, parameter)
        mousePress(panel, centre.x, centre.y)
        return centre
    }

    function drag(panel: Item, parameter: string, dx: real, dy: real) {
        const centre = press(panel, parameter)
        mouseMove(panel, centre.x + dx / 2, centre.y + dy / 2)
        mouseMove(panel, centre.x + dx, centre.y + dy)
        mouseRelease(panel, centre.x + dx, centre.y + dy)
    }
}
