import QtQuick
import QtTest
import TambleClient.Control 1.0

TestCase {
    id: root
    name: "TransferFunctions"

    TransferFunctions {
        id: functions
    }

    function test_maps() {
        compare(functions.fromUnitToNormalized(-5, -80, 10), 0.625)
        compare(functions.fromUnitToNormalized(11, -80, 10), 1)
        compare(functions.fromUnitToNormalized(-45, -60, 0), 0.25)
        compare(functions.fromNormalizedToUnit(0.75, -80, 10), 0)
        compare(functions.fromNormalizedToUnit(-1, -80, 42), -80)
        compare(functions.scale(0.25, [1, 0], [0, 200]), 150)
    }

    function test_tables() {
        const table = functions.getTransferTable(-80, 42)
        compare(table.length, 10)
        compare([table[3][0], table[3][1]], [-20, 0.225])
        compare(functions.getTransferTable(-60, 0), [[-60, 0], [0, 1]])
    }
}
