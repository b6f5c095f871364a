import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root

    name: "RBodeplotCurve"
    width: 400
    height: 500

    Component {
        id: pageComponent

        Item {
            width: 300
            height: 400

            readonly property alias curve: theCurve
            readonly property real yMinimum: -20
            readonly property real yMaximum: 20

            RBodeplotCurve {
                id: theCurve
                settleTime: 0
                calculationItems: [
                    RBodeplotEqFilter {
                        freq: 2000
                        label: "mid"
                    },
                    RBodeplotXOverFilter {
                        freq: 200
                        category: RBodeplotXOverCategoryEnum.XOVERCATEGORY_HIPASS
                        type: RBodeplotXOverTypeEnum.XOVER_LINKWITZ_TWELVE_DB
                    }
                ]
                // As pages do: what the user drags is written to the device, which the filter shows.
                onUserChangedFilterPoint: (index, type, frequency, gain, quality) => {
                    calculationItems[index].freq = frequency
                    if (index === 0) {
                        calculationItems[0].gain = gain
                        calculationItems[0].quality = quality
                    }
                }
            }
        }
    }
    SignalSpy {
        id: changed
        signalName: "userChangedFilterPoint"
    }
    SignalSpy {
        id: selected
        signalName: "userSelectedFilterPoint"
    }

    function make(): var {
        const curve = createTemporaryObject(pageComponent, root).curve
        changed.target = curve
        selected.target = curve
        changed.clear()
        selected.clear()
        return curve
    }

    function handles(curve: var): var {
        return Array.from(curve.children).filter(child => child.index !== undefined)
    }

    function test_handlesStandOnTheirFilters() {
        const curve = make()
        compare(curve.yMaximum, 20, "taken from the surrounding frame")
        compare(curve.xMaximum, 20000, "which has none of these")
        const [band, pass] = handles(curve)
        compare([band.x + band.width / 2, band.y + band.height * 0.75], [200, 200])
        compare(pass.label, "HP")
        compare(band.Accessible.name, "Filter mid")
        compare(band.Accessible.description, "2000 Hz, +0.0 dB, Q 1.0")
        compare(pass.Accessible.description, "200 Hz")
        curve.hidePoints = true
        compare(handles(curve).length, 0)
        curve.hidePoints = false
        curve.enabled = false
        compare(handles(curve).length, 0)
    }

    function test_dragging() {
        const curve = make()
        const band = handles(curve)[0]
        mousePress(curve, 200, 195)
        compare(selected.count, 1)
        compare(curve.pressed, true)
        compare(changed.count, 0)
        mouseMove(curve, 150, 150)
        mouseMove(curve, 100, 100)
        compare(handles(curve)[0], band, "the handle under the pointer stays")
        compare(band.selected, true)
        fuzzyCompare(curve.calculationItems[0].freq, 200, 0.01)
        compare(curve.calculationItems[0].gain, 10)
        mouseMove(curve, 100, -30)
        compare(curve.calculationItems[0].gain, 12)
        mouseRelease(curve, 100, 100)
        compare(curve.pressed, false)
        compare(selected.count, 1)
    }

    function test_draggingTheQuality() {
        const curve = make()
        mousePress(curve, 200, 195, Qt.RightButton)
        mouseMove(curve, 230, 395, -1, Qt.RightButton)
        compare(curve.calculationItems[0].quality, 40)
        compare(curve.calculationItems[0].freq, 2000)
        mouseRelease(curve, 230, 395, Qt.RightButton)
    }

    function test_escapeTakesADragBack() {
        const curve = make()
        mousePress(curve, 200, 195)
        mouseMove(curve, 100, 100)
        keyClick(Qt.Key_Escape)
        compare(curve.pressed, false)
        fuzzyCompare(curve.calculationItems[0].freq, 2000, 0.01)
        compare(curve.calculationItems[0].gain, 0)
        mouseMove(curve, 50, 50)
        compare(curve.calculationItems[0].gain, 0, "the drag has ended")
        mouseRelease(curve, 50, 50)
    }

    function test_doubleClickSetsNoGain() {
        const curve = make()
        curve.calculationItems[0].gain = 10
        mouseDoubleClickSequence(curve, 200, 95)
        fuzzyCompare(curve.calculationItems[0].gain, 0, 1e-6)
    }

    function test_keys_data() {
        return [
            { tag: "right", key: Qt.Key_Right, x: 201.5, y: 200 },
            { tag: "left, fine", key: Qt.Key_Left, modifiers: Qt.ShiftModifier, x: 199.85, y: 200 },
            { tag: "up", key: Qt.Key_Up, x: 200, y: 196 },
            { tag: "down, fine", key: Qt.Key_Down, modifiers: Qt.ShiftModifier, x: 200, y: 200.4 }
        ]
    }

    function test_keys(data: var) {
        const curve = make()
        const band = handles(curve)[0]
        band.forceActiveFocus()
        keyClick(data.key, data.modifiers === undefined ? Qt.NoModifier : data.modifiers)
        fuzzyCompare(band.x + band.width / 2, data.x, 1e-3)
        fuzzyCompare(band.y + band.height * 0.75, data.y, 1e-3)
        compare(changed.count, 1)
    }

    function test_qualityKeys() {
        const curve = make()
        handles(curve)[0].forceActiveFocus()
        keyClick(Qt.Key_PageDown)
        fuzzyCompare(curve.calculationItems[0].quality, 1 + 39 * 8 / 200, 1e-5)
    }

    function test_tabWalksByFrequency() {
        const curve = make()
        const [band, pass] = handles(curve)
        keyClick(Qt.Key_Tab)
        verify(pass.activeFocus)
        keyClick(Qt.Key_Tab)
        verify(band.activeFocus)
        keyClick(Qt.Key_Backtab)
        verify(pass.activeFocus)
    }

    function test_wheelChangesTheQualityWithControlOnly() {
        const curve = make()
        curve.selectFilterPoint(0)
        mouseWheel(curve, 200, 195, 0, -120)
        compare(changed.count, 0)
        mouseWheel(curve, 200, 195, 0, -120, Qt.NoButton, Qt.ControlModifier)
        fuzzyCompare(curve.calculationItems[0].quality, 1 + 39 * 8 / 200, 1e-5)
    }
}
