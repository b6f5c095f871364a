import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root

    name: "RBodeplotCurve"
    width: 400
    height: 500

    property SignalSpy changed
    property SignalSpy selected

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
                // Not in the list at first.
                readonly property RBodeplotAsymmetricEqFilter asymmetric: RBodeplotAsymmetricEqFilter {
                    freq: 200
                    freq2: 2000
                }
                // As pages do: what the user drags is written to the device, which the filter shows.
                onUserChangedFilterPoint: (index, type, frequency, gain, quality) => {
                    calculationItems[index][type === "ASYMEQ2" ? "freq2" : "freq"] = frequency
                    if (index === 0) {
                        calculationItems[0].gain = gain
                        calculationItems[0].quality = quality
                    }
                }
            }
        }
    }

    function make(): var {
        const curve = createTemporaryObject(pageComponent, root).curve
        root.changed = spyOn(curve, "userChangedFilterPoint")
        root.selected = spyOn(curve, "userSelectedFilterPoint")
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
        compare(root.selected.count, 1)
        compare(curve.pressed, true)
        compare(root.changed.count, 0)
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
        compare(root.selected.count, 1)
    }

    function test_listAssignedDuringADrag() {
        const curve = make()
        const filters = Array.from(curve.calculationItems)
        const band = handles(curve)[0]
        curve.userChangedFilterPoint.connect(() => curve.calculationItems = filters)
        mousePress(curve, 200, 195)
        mouseMove(curve, 150, 150)
        waitForRendering(curve)
        mouseMove(curve, 100, 100)
        compare(handles(curve)[0], band)
        fuzzyCompare(filters[0].freq, 200, 0.01)
        mouseRelease(curve, 100, 100)
    }

    function test_handleGoesWhilePressed_data() {
        return [
            { tag: "points hidden", property: "hidePoints", value: true },
            { tag: "disabled", property: "enabled", value: false },
            { tag: "another list", property: "calculationItems", value: [] }
        ]
    }

    function test_handleGoesWhilePressed(data: var) {
        const curve = make()
        const filters = Array.from(curve.calculationItems)
        mousePress(curve, 200, 195)
        mouseMove(curve, 150, 150)
        const before = curve[data.property]
        curve[data.property] = data.value
        tryCompare(curve, "pressed", false)
        mouseRelease(curve, 150, 150)
        curve[data.property] = data.property === "calculationItems" ? filters : before
        filters[0].gain = -5
        tryVerify(() => handles(curve).length === 2 && Math.abs(handles(curve)[0].gain + 5) < 1e-6)
    }

    function test_draggingTheQuality() {
        const curve = make()
        mousePress(curve, 200, 195, Qt.RightButton)
        mouseMove(curve, 230, 395, -1, Qt.RightButton)
        compare(curve.calculationItems[0].quality, 40)
        compare(curve.calculationItems[0].freq, 2000)
        mouseRelease(curve, 230, 395, Qt.RightButton)
    }

    function test_qualityThatCannotBeDragged_data() {
        return [
            { tag: "proportional Q", type: 6, slope: 0, description: "2000 Hz, +0.0 dB, Q 1.0" },
            { tag: "pass of 6 dB", type: 3, slope: 1, description: "2000 Hz" },
            { tag: "shelf", type: 1, slope: 0, description: "2000 Hz, +0.0 dB" },
            { tag: "band pass", type: 8, slope: 0, description: "2000 Hz, Q 1.0" },
            { tag: "all pass of first order", type: 5, slope: 1, description: "2000 Hz", drags: true }
        ]
    }

    function test_qualityThatCannotBeDragged(data: var) {
        const curve = make()
        const filter = curve.calculationItems[0]
        filter.type = data.type
        filter.slope = data.slope
        const band = handles(curve)[0]
        compare(band.Accessible.description, data.description)
        mousePress(curve, 200, 195, Qt.RightButton)
        mouseMove(curve, 200, 295, -1, Qt.RightButton)
        compare(band.showQuality, data.drags === true)
        mouseRelease(curve, 200, 295, Qt.RightButton)
        keyClick(Qt.Key_PageDown)
        compare(root.changed.count > 0, data.drags === true)
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
        // A finger, as the test's mouse cannot move within a double click.
        const touch = touchEvent(curve)
        touch.press(0, curve, 200, 95).commit()
        touch.release(0, curve, 200, 95).commit()
        touch.press(0, curve, 200, 95).commit()
        compare(curve.calculationItems[0].gain, 0)
        compare(curve.pressed, false)
        touch.move(0, curve, 204, 99).commit()
        touch.release(0, curve, 204, 99).commit()
        compare(curve.calculationItems[0].gain, 0, "the tremor of a click moves nothing")
    }

    function test_roundHandles() {
        const curve = make()
        mouseClick(curve, 200 + 18, 188 + 18)
        compare(root.selected.count, 0, "in a corner of the square around the circle")
        mouseClick(curve, 200 + 15, 188 + 15)
        compare(root.selected.count, 1)
    }

    function test_keys_data() {
        return [
            { tag: "right", key: Qt.Key_Right, octaves: 1 / 6, gain: 0 },
            { tag: "left, fine", key: Qt.Key_Left, modifiers: Qt.ShiftModifier, octaves: -1 / 24, gain: 0 },
            { tag: "right, coarse", key: Qt.Key_Right, modifiers: Qt.ControlModifier, octaves: 1, gain: 0 },
            { tag: "up", key: Qt.Key_Up, octaves: 0, gain: 0.5 },
            { tag: "down, fine", key: Qt.Key_Down, modifiers: Qt.ShiftModifier, octaves: 0, gain: -0.1 },
            { tag: "up, coarse", key: Qt.Key_Up, modifiers: Qt.ControlModifier, octaves: 0, gain: 3 }
        ]
    }

    function test_keys(data: var) {
        const curve = make()
        const band = handles(curve)[0]
        band.forceActiveFocus()
        keyClick(data.key, data.modifiers === undefined ? Qt.NoModifier : data.modifiers)
        compare(curve.editing, true)
        fuzzyCompare(curve.calculationItems[0].freq, 2000 * Math.pow(2, data.octaves), 1e-3)
        fuzzyCompare(curve.calculationItems[0].gain, data.gain, 1e-6)
        // 300 pixels are three decades, 400 are 40 dB.
        fuzzyCompare(band.x + band.width / 2, 200 + 100 * Math.log10(2) * data.octaves, 1e-3)
        fuzzyCompare(band.y + band.height * 0.75, 200 - 10 * data.gain, 1e-3)
        compare(root.changed.count, 1)
        keyClick(Qt.Key_Home)
        compare(root.changed.count, 1)
        keyClick(Qt.Key_End)
        compare(curve.calculationItems[0].gain, 0)
        tryCompare(curve, "editing", false)
    }

    function test_keysKeepTheHandleInSight() {
        const view = createTemporaryQmlObject("import QtQuick; Flickable { width: 300; height: 100; contentHeight: 400; contentY: 150 }", root)
        const curve = createTemporaryObject(pageComponent, view.contentItem).curve
        const band = handles(curve)[0]
        band.forceActiveFocus()
        for (const { key, times } of [{ key: Qt.Key_Up, times: 25 }, { key: Qt.Key_Down, times: 50 }]) {
            for (let i = 0; i < times; ++i)
                keyClick(key)
            const top = band.mapToItem(view, 0, 0).y
            verify(top >= 0 && top + band.height <= view.height, "at " + top)
        }
        mouseDrag(band, band.width / 2, band.height / 2, 0, -90)
        verify(band.mapToItem(view, 0, 0).y < 0, "the pointer scrolls nothing")
    }

    function test_asymmetricBandFollowsEveryKey() {
        const curve = make()
        curve.calculationItems = [curve.asymmetric]
        waitForRendering(curve)
        const upper = handles(curve)[1]
        upper.forceActiveFocus()
        for (let i = 1; i <= 2; ++i) {
            keyClick(Qt.Key_Right)
            keyClick(Qt.Key_Right)
            tryVerify(() => Math.abs(curve.asymmetric.freq2 - 2000 * Math.pow(2, i / 3)) < 0.01, 1000, "settled")
            fuzzyCompare(upper.x + upper.width / 2, 200 + 100 * Math.log10(2) * i / 3, 1e-3)
        }
    }

    function test_tabWalksByFrequency() {
        const curve = make()
        const [band, pass] = handles(curve)
        keyClick(Qt.Key_Tab)
        verify(pass.activeFocus)
        compare(root.selected.signalArguments.map(args => args[0]), [1], "the focus selects")
        keyClick(Qt.Key_Tab)
        verify(band.activeFocus)
        keyClick(Qt.Key_Backtab)
        verify(pass.activeFocus)
    }

    function test_eachFingerHoldsAHandle() {
        const curve = make()
        const [band, pass] = handles(curve)
        const filters = curve.calculationItems
        const touch = touchEvent(curve)
        touch.press(0, curve, 200, 195).commit()
        touch.stationary(0).press(1, curve, 100, 195).commit()
        compare([band.dragging, pass.dragging, curve.heldPoints], [true, true, 2])
        touch.move(0, curve, 150, 100).move(1, curve, 50, 195).commit()
        // Movements of fingers come with the next frame.
        tryVerify(() => Math.abs(filters[0].freq - 20 * Math.pow(10, 1.5)) < 0.01)
        fuzzyCompare(filters[1].freq, 20 * Math.pow(10, 0.5), 0.01)
        touch.release(0, curve, 150, 100).stationary(1).commit()
        compare([band.dragging, pass.dragging, curve.pressed], [false, true, true])
        filters[1].freq = 5000
        fuzzyCompare(pass.frequency, 20 * Math.pow(10, 0.5), 0.01, "still held")
        curve.cancelFilterPoint(1)
        fuzzyCompare(filters[1].freq, 200, 0.01)
        touch.release(1, curve, 50, 195).commit()
        compare(curve.pressed, false)
    }

    function test_tellsWhatIsDragged() {
        const curve = make()
        const band = handles(curve)[0]
        mousePress(curve, 200, 195)
        mouseMove(curve, 100, 100)
        compare(findChild(band, "bubble").text, "200 Hz, +10.0 dB")
        mouseRelease(curve, 100, 100)
        tryVerify(() => findChild(band, "bubble") === null)
        mousePress(curve, 100, 95, Qt.RightButton)
        mouseMove(curve, 100, 295, -1, Qt.RightButton)
        compare(findChild(band, "bubble").text, "Q 40.0")
        mouseRelease(curve, 100, 295, Qt.RightButton)
    }

    // The second click on handles that lie on each other leads to the other one, unless it becomes a double click.
    function test_clickLeadsToTheHandleBeneath() {
        const curve = make()
        curve.calculationItems[1].freq = 2000
        const [band, pass] = handles(curve)
        mouseClick(curve, 200, 190)
        compare([band.activeFocus, pass.activeFocus], [false, true], "the one on top")
        wait(Application.styleHints.mouseDoubleClickInterval + 50)
        mouseClick(curve, 200, 190)
        compare(pass.activeFocus, true)
        tryCompare(band, "activeFocus", true)
        compare(band.selected, true)
        mousePress(curve, 200, 190)
        mouseMove(curve, 150, 190)
        compare([band.dragging, pass.dragging], [true, false], "the one touched last")
        mouseRelease(curve, 150, 190)
    }

    function test_discsStayInThePlot_data() {
        return [
            { tag: "lowest frequency, top", frequency: 20, gain: 20, x: 12, y: 24 },
            { tag: "highest frequency", frequency: 20000, gain: 0, x: -12, y: 0 },
            { tag: "in between", frequency: 1000, gain: 0, x: 0, y: 0 }
        ]
    }

    function test_discsStayInThePlot(data: var) {
        const curve = make()
        curve.calculationItems[0].freq = data.frequency
        curve.calculationItems[0].gain = data.gain
        const band = handles(curve)[0]
        compare([band.discX, band.discY], [data.x, data.y])
    }

    function test_qualityByKeysAndTheWheelWithControl() {
        const curve = make()
        handles(curve)[0].forceActiveFocus()
        mouseWheel(curve, 200, 195, 0, -120)
        compare(root.changed.count, 0)
        keyClick(Qt.Key_PageDown)
        fuzzyCompare(curve.calculationItems[0].quality, 1 + 39 * 8 / 200, 1e-5)
        mouseWheel(curve, 200, 195, 0, -120, Qt.NoButton, Qt.ControlModifier)
        fuzzyCompare(curve.calculationItems[0].quality, 2.56 + (40 - 2.56) * 8 / 200, 1e-5)
    }
}
