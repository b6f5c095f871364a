import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RProgressBar"

    function test_fraction_data() {
        return [
            { tag: "value: 0.25", at: 0.25 },
            { tag: "from: -80; to: 0; value: -60", at: 0.25 },
            { tag: "value: 7", at: 1 },
            { tag: "value: -1", at: 0 },
            { tag: "value: NaN", at: 0 },
            { tag: "value: Infinity", at: 1 },
            { tag: "to: NaN; value: 0.5", at: 0 },
            { tag: "from: 1; value: 1", at: 0 }
        ]
    }
    function test_fraction(row) {
        const bar = make("RProgressBar { " + row.tag + " }")
        compare(bar.fraction, row.at)
        compare([bar.contentItem.x, bar.contentItem.width], [0, row.at * 144])
        bar.LayoutMirroring.enabled = true
        compare([bar.contentItem.x, bar.contentItem.width], [(1 - row.at) * 144, row.at * 144])
    }

    function test_text() {
        const bar = make("RProgressBar { to: 300 }")
        compare(bar.implicitHeight, 8)
        bar.text = "%p % of %p"
        bar.value = 100
        compare(bar.shownText, "33 % of 33")
        compare(bar.implicitHeight, 16)
    }

    function test_travelsWhileSeen() {
        const bar = make("RProgressBar { indeterminate: true }")
        tryVerify(() => bar.travel > 0)
        for (const [property, rests, moves] of [["visible", false, true], ["failed", true, false], ["indeterminate", false, true]]) {
            bar[property] = rests
            verify(!bar.travelling)
            bar[property] = moves
            verify(bar.travelling)
        }
    }

    function test_waitsBeforeItShows() {
        const dots = make("RLoadingAnimation { running: false }")
        const shown = spyOn(dots, "shownChanged")
        dots.running = true
        verify(!dots.shown)
        dots.running = false
        dots.running = true
        tryVerify(() => dots.shown && dots.turning)
        dots.visible = false
        verify(!dots.turning)
        dots.visible = true
        verify(dots.turning)
        dots.running = false
        verify(!dots.shown && !dots.turning)
        compare(shown.count, 2)
    }

    function test_wordWithoutEnd() {
        const dots = make("RLoadingAnimation { width: 12; text: 'a'.repeat(10000) }")
        const words = Array.from(dots.contentItem.children).find(child => child.text === dots.text)
        compare(words.lineCount, 100)
    }

    function test_sectionHeader() {
        const header = make("RSectionHeader { width: 300; text: 'Inputs'; RButton { width: 50 } }")
        waitForRendering(header)
        root.sheet = "light"
        const caption = make("RLabel {}")
        tryVerify(() => Qt.colorEqual(header.ssColor, caption.ssColor), 1000, "light has no rules for titles")
        root.sheet = "dark"
        tryVerify(() => !Qt.colorEqual(header.ssColor, header.ssLineColor))
    }
}
