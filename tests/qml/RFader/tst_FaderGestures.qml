import QtQuick
import QtTest
import TambleClient.Control 1.0

FaderTestCase {
    id: root
    name: "FaderGestures"

    Flickable {
        id: view
        x: 150
        width: 100
        height: 260
        contentWidth: 300
        contentHeight: 800
    }
    function test_fingersOnTwoFaders() {
        const first = makeFader({})
        const second = makeFader({ x: 80, value: -40 })
        const touch = touchEvent(first)
        touch.press(0, first, 28, 150).commit()
        touch.stationary(0).press(1, second, 28, 150).commit()
        // A finger may wander by 5 pixels before it counts as dragging.
        touch.move(0, first, 28, 125).move(1, second, 28, 175).commit()
        tryCompare(first, "value", -10)
        tryCompare(second, "value", -50)
        touch.move(0, first, 28, 115).stationary(1).commit()
        tryCompare(first, "value", -5)
        touch.release(0, first, 28, 115).release(1, second, 28, 175).commit()
        compare([first.log[2], second.log[1]], ["committed -5", "committed -50"])
        compare(first.pressed || second.pressed, false)
    }

    function test_escapeTakesTheHandleFromTheFinger() {
        const fader = makeFader({})
        fader.forceActiveFocus()
        const touch = touchEvent(fader)
        touch.press(0, fader, 28, 150).commit()
        touch.move(0, fader, 28, 125).commit()
        tryCompare(fader, "value", -10)
        keyClick(Qt.Key_Escape)
        compare([fader.value, fader.pressed, fader.editing], [-20, false, false])
        touch.move(0, fader, 28, 100).commit()
        touch.release(0, fader, 28, 100).commit()
        compare([fader.value, fader.pressed], [-20, false])
        compare(fader.log, ["edited -10", "edited -20", "canceled"])
        touch.press(0, fader, 28, 150).commit()
        touch.move(0, fader, 28, 125).commit()
        tryCompare(fader, "value", -10, 1000, "the next finger takes hold again")
        compare(fader.pressed, true)
        touch.release(0, fader, 28, 125).commit()
        compare(fader.pressed, false)
    }

    function test_fingerInAView_data() {
        return [
            { tag: "along the fader", dx: 0, dy: -6, scrolls: false },
            { tag: "across scrolls", dx: -6, dy: 0, scrolls: true },
        ]
    }
    function test_fingerInAView(data) {
        view.contentX = 0
        view.contentY = 0
        const fader = createTemporaryObject(root.faderComponent, view.contentItem)
        const touch = touchEvent(fader)
        touch.press(0, view, 28, 150).commit()
        for (let i = 1; i <= 12; ++i) {
            touch.move(0, view, 28 + i * data.dx, 150 + i * data.dy).commit()
            waitForRendering(view, 20) // moves are handed on once a frame
        }
        tryVerify(() => data.scrolls ? view.contentX > 0 : fader.value > -20)
        compare([fader.value > -20, view.contentX > 0, view.contentY > 0], [!data.scrolls, data.scrolls, false])
        touch.release(0, view, 28 + 12 * data.dx, 150 + 12 * data.dy).commit()
        compare(fader.pressed, false)
    }

    function test_goneWhileHeld() {
        const pressed = makeFader({})
        press(pressed, 200)
        mouseMove(pressed, 28, 190)
        pressed.destroy()
        wait(0)
        mouseRelease(root, 28, 190)
        const touched = makeFader({})
        const touch = touchEvent(root)
        touch.press(0, touched, 28, 150).commit()
        touch.move(0, touched, 28, 120).commit()
        tryCompare(touched, "editing", true)
        touched.destroy()
        wait(0)
        touch.release(0, root, 28, 120).commit()
    }

    function test_doubleTapResets() {
        const fader = makeFader({})
        for (let i = 0; i < 2; ++i) {
            touchEvent(fader).press(0, fader, 28, 150).commit()
            touchEvent(fader).release(0, fader, 28, 150).commit()
        }
        compare(fader.log, ["edited 0", "committed 0"])
    }

    function test_contextMenu() {
        const fader = makeFader({})
        const places = []
        fader.contextMenuRequested.connect(place => places.push(place.y))
        mouseClick(fader, 28, 60, Qt.RightButton)
        compare(places, [60])
        const touch = touchEvent(fader)
        touch.press(0, fader, 28, 150).commit()
        tryVerify(() => places.length === 2)
        touch.move(0, fader, 28, 100).commit()
        touch.release(0, fader, 28, 100).commit()
        compare(fader.log, [], "the finger has let go of the handle")
    }

    function test_drag() {
        const fader = makeFader({})
        press(fader, 200)
        compare(fader.pressed, true)
        compare(fader.activeFocus, true)
        compare(fader.value, -20, "a press does not move")
        mouseMove(fader, 28, 196)
        compare(fader.value, -18)
        compare(fader.editing, true)
        mouseMove(fader, 28, 195)
        compare(fader.value, -17.5)
        mouseMove(fader, 28, -300)
        compare(fader.value, 10)
        mouseMove(fader, 28, 120)
        compare(fader.value, 10, "the pointer went 20 pixels too far")
        mouseMove(fader, 28, 138)
        compare(fader.value, 10)
        mouseMove(fader, 28, 142)
        compare(fader.value, 9)
        mouseRelease(fader, 28, 142)
        compare(fader.log, ["edited -18", "edited -17.5", "edited 10", "edited 9", "committed 9"])
        compare(fader.editing, false)
        tryCompare(fader, "pressed", false)
    }

    function test_releaseAfterEscapeDoesNothing() {
        const fader = makeFader({})
        press(fader, 200)
        mouseMove(fader, 28, 180)
        compare(fader.value, -10)
        keyClick(Qt.Key_Escape)
        compare([fader.value, fader.pressed], [-20, false])
        mouseMove(fader, 28, 100)
        mouseRelease(fader, 28, 100)
        compare(fader.value, -20)
        compare(fader.log, ["edited -10", "edited -20", "canceled"])
    }

    function test_notLiveSpeaksAtTheEnd() {
        const fader = makeFader({ live: false })
        press(fader, 200)
        mouseMove(fader, 28, 190)
        mouseMove(fader, 28, 180)
        compare(fader.value, -10)
        compare(fader.log, [])
        mouseRelease(fader, 28, 180)
        compare(fader.log, ["edited -10", "committed -10"])
    }

    function test_detentsHold() {
        const fader = makeFader({})
        fader.detents = [-10]
        press(fader, 200)
        mouseMove(fader, 28, 183)
        compare(fader.value, -10, "3 pixels away")
        mouseMove(fader, 28, 175)
        compare(fader.value, -7.5)
        mouseRelease(fader, 28, 175)
    }

    function test_trackPress_data() {
        return [
            { tag: "holds", jump: false, y: 124, log: [] },
            { tag: "jumps when wanted", jump: true, y: 124, log: ["edited -40", "committed -40"] },
            { tag: "on the handle", jump: true, y: 90, log: [] },
        ]
    }
    function test_trackPress(data) {
        const fader = makeFader({ jumpOnTrackPress: data.jump })
        mouseClick(fader, 40, data.y)
        compare(fader.log, data.log)
    }
}
