import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root

    name: "RBodeplot"
    width: 600
    height: 400

    property var log: []
    property var fingers: []

    Component {
        id: frameComponent

        RBodeplot {
            width: 536
            height: 336

            readonly property alias curve: simpleCurve
            readonly property alias limiter: limiterCurve

            RSimpleCurve {
                id: simpleCurve
            }
            RLimiterCurve {
                id: limiterCurve
                threshold: 10
            }
        }
    }
    MouseArea {
        id: behind

        property int turns: 0

        anchors.fill: parent
        onWheel: behind.turns += 1
    }
    Flickable {
        id: flickable
        anchors.fill: parent
        contentHeight: 1000
        enabled: false
    }

    function make(properties: var): var {
        const frame = createTemporaryObject(frameComponent, root, properties)
        root.log = logged(frame.limiter, { userChangedThreshold: "changed", userCommittedThreshold: "committed" })
        root.fingers = []
        frame.twoFingerHorizontalChange.connect(amount => root.fingers.push(amount))
        waitForRendering(frame)
        return frame
    }

    function test_plotArea() {
        const frame = make({})
        // 8 of spacing all around, 20 for each axis.
        const area = frame.curve.mapToItem(frame, 0, 0)
        compare(area, Qt.point(28, 8))
        compare([frame.curve.width, frame.curve.height], [500, 300])
        compare(frame.zoomAreaWidth, 500)
        frame.showAxis = false
        compare([frame.curve.width, frame.curve.height], [520, 320])
    }

    function test_curvesFollowTheFrame() {
        const frame = make({ xIncrement: 1000 })
        frame.yMaximum = 40
        frame.xMinimum = 100
        frame.xAxisScale = RBodeplotAxisScaleEnum.LINEAR
        for (const curve of [frame.curve, frame.limiter]) {
            compare([curve.xMinimum, curve.xMaximum, curve.yMinimum, curve.yMaximum], [100, 20000, -25, 40])
            compare(curve.xAxisScale, RBodeplotAxisScaleEnum.LINEAR)
        }
    }

    function test_wheel_data() {
        return [
            { tag: "turns are the page's", properties: {}, x: 0, y: 120, fingers: [0.12], maximum: 25 },
            { tag: "a turn to the side zooms out", properties: {}, x: 120, y: 0, fingers: [], maximum: 27.5 },
            { tag: "no zooming", properties: { allowZoom: false }, x: 120, y: 0, fingers: [], maximum: 25, passed: true },
            { tag: "notch towards the user", properties: { wheelZooms: true }, x: 0, y: -120, fingers: [], maximum: 22.5 },
            { tag: "three notches away", properties: { wheelZooms: true }, x: 0, y: 360, fingers: [], maximum: 32.5 },
            { tag: "part of a notch", properties: { wheelZooms: true }, x: 0, y: 60, fingers: [], maximum: 25 },
            { tag: "to the side in that mode", properties: { wheelZooms: true }, x: 120, y: 0, fingers: [], maximum: 25, passed: true },
            { tag: "no zooming in that mode", properties: { wheelZooms: true, allowZoom: false }, x: 0, y: 120, fingers: [], maximum: 25, passed: true }
        ]
    }
    function test_wheel(row) {
        const frame = make(row.properties)
        behind.turns = 0
        mouseWheel(frame, 200, 100, row.x, row.y)
        compare(behind.turns, row.passed ? 1 : 0)
        compare(root.fingers, row.fingers)
        compare(frame.yMaximum, row.maximum)
    }

    function test_middleButtonTogglesWhatIsZoomed() {
        const frame = make({})
        mouseClick(frame, 200, 100, Qt.MiddleButton)
        frame.xMinimum = 200
        mouseWheel(frame, 200, 100, 120, 0)
        compare(frame.yMaximum, 25)
        fuzzyCompare(frame.xMinimum, 200 / 1.15, 1e-9)
    }

    function test_dragPansAZoomedPlot() {
        const frame = make({})
        mouseDrag(frame, 300, 100, -100, 0)
        compare(frame.xMinimum, 20, "the whole range is shown")
        frame.xMinimum = 200
        frame.xMaximum = 2000
        mouseDrag(frame, 300, 100, -100, 0)
        verify(frame.xMinimum > 200 && frame.xMaximum > 2000)
        fuzzyCompare(frame.xMaximum / frame.xMinimum, 10, 1e-9)
    }

    function test_dragStaysWithThePlotOnAScrollingPage() {
        const frame = make({ xMinimum: 200, parent: flickable.contentItem })
        flickable.enabled = true
        frame.setDefaultXMinimum(20)
        mousePress(frame, 300, 200)
        for (let i = 1; i < 10; ++i)
            mouseMove(frame, 300 - 5 * i, 200 - 15 * i)
        mouseRelease(frame, 250, 50)
        flickable.enabled = false
        compare(flickable.contentY, 0)
    }

    function test_keys() {
        const frame = make({})
        frame.forceActiveFocus()
        keyClick(Qt.Key_Plus)
        compare(frame.yMaximum, 22.5)
        keyClick(Qt.Key_Minus)
        keyClick(Qt.Key_Minus)
        compare(frame.yMaximum, 27.5)
        frame.xMinimum = 200
        frame.xMaximum = 2000
        keyClick(Qt.Key_Right)
        verify(frame.xMinimum > 200)
        keyClick(Qt.Key_Space)
        keyClick(Qt.Key_Minus)
        compare(frame.yMaximum, 27.5)
        verify(frame.xMinimum < 200)
    }

    function test_pinch() {
        const frame = make({})
        const touch = touchEvent(frame)
        let x = 300
        touch.press(0, frame, 200, 150).commit()
        touch.stationary(0).press(1, frame, x, 150).commit()
        // Movements within a frame come as one.
        tryVerify(() => {
            x += 4
            touch.move(0, frame, 200, 150).move(1, frame, x, 150).commit()
            return root.fingers.length >= 3
        })
        touch.release(0, frame, 200, 150).release(1, frame, x, 150).commit()
        const sum = root.fingers.reduce((total, amount) => total + amount, 0)
        verify(sum > 0 && sum <= Math.log((x - 200) / 100) + 1e-6)
    }

    function test_thresholdDrag() {
        const frame = make({})
        const handle = frame.limiter.handle
        // 300 pixels are 50 dB: 6 pixels a dB.
        mousePress(handle, 15, 9)
        compare(root.log, [])
        mouseMove(handle, 15, 9 + 30)
        compare(root.log, ["changed 5"])
        compare(frame.limiter.threshold, 5)
        mouseRelease(handle, 15, 9)
        compare(root.log, ["changed 5", "committed 5"])
        compare(frame.limiter.threshold, 5, "not bound by the page, so it keeps the edit")
        verify(handle.activeFocus)
    }

    function test_escapeEndsADragWithoutEffect() {
        const frame = make({})
        const handle = frame.limiter.handle
        mousePress(handle, 12, 12)
        mouseMove(handle, 12, 72)
        keyClick(Qt.Key_Escape)
        mouseMove(handle, 12, 100)
        mouseRelease(handle, 12, 100)
        compare(frame.limiter.threshold, 10)
        compare(root.log, ["changed 0", "changed 10"])
    }

    function test_doubleClickSetsTheDefault() {
        const frame = make({})
        frame.limiter.defaultThreshold = -3
        mouseDoubleClickSequence(frame.limiter.handle, 12, 12)
        compare(frame.limiter.threshold, -3)
        compare(root.log.slice(-1), ["committed -3"])
    }

    function test_noThreshold() {
        const frame = make({})
        frame.limiter.threshold = NaN
        frame.limiter.handle.forceActiveFocus()
        keyClick(Qt.Key_Up)
        compare(root.log, [])
        compare(frame.limiter.handle.valueText, "–")
    }

    function test_thresholdKeys_data() {
        return [
            { tag: "up", key: Qt.Key_Up, threshold: 10.5 },
            { tag: "down", key: Qt.Key_Down, threshold: 9.5 },
            { tag: "fine", key: Qt.Key_Left, modifiers: Qt.ShiftModifier, threshold: 9.9 },
            { tag: "page", key: Qt.Key_PageDown, threshold: 7 }
        ]
    }
    function test_thresholdKeys(row) {
        const frame = make({})
        frame.limiter.handle.forceActiveFocus()
        keyClick(row.key, row.modifiers ?? Qt.NoModifier)
        frame.limiter.handle.close()
        compare(root.log.slice(-1), ["committed " + row.threshold])
        compare(frame.limiter.threshold, row.threshold)
    }
}
