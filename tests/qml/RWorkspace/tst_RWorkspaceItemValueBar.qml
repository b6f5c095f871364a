import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RWorkspaceItemValueBar"

    function barOf(body: string): var {
        return make("RWorkspaceItemValueBar { width: 100; height: 6; " + body + " }")
    }

    /*! The rows of pixels in the middle of the bar: a colour for each of the places. */
    function colorsAt(bar: Item, places: var): var {
        const picture = grabImage(bar)
        return places.map(x => String(picture.pixel(x, 3)))
    }

    function test_length_data() {
        return [
            { tag: "value: 25", lit: [0, 25] },
            { tag: "value: 25; reverse: true", lit: [75, 100] },
            { tag: "from: -60; to: 0; value: -15", lit: [0, 75] },
            { tag: "from: 100; to: 0; value: 75", lit: [0, 25] },
            { tag: "value: 1e9", lit: [0, 100] },
            { tag: "value: -1", lit: [0, 0] },
            { tag: "value: NaN", lit: [0, 0] },
            { tag: "value: 5; from: 7; to: 7", lit: [0, 0] },
            { tag: "value: 25; LayoutMirroring.enabled: true", lit: [0, 25] }
        ]
    }
    function test_length(row) {
        const bar = barOf(row.tag)
        const ground = String(bar.ssBackground)
        for (const x of [1, 24, 26, 74, 76, 98])
            compare(colorsAt(bar, [x])[0], x > row.lit[0] && x < row.lit[1] ? String(bar.ssBackgroundBar) : ground, x)
    }

    function test_delimiter_data() {
        return [
            { tag: "50", value: 50, at: 50 },
            { tag: "at the beginning", value: 0, at: 0 },
            { tag: "cut to the end", value: 1e9, at: 99 },
            { tag: "none", value: NaN, at: -1 }
        ]
    }
    function test_delimiter(row) {
        const bar = barOf("value: 25; delimiterValue: " + row.value)
        const marked = [0, 50, 99].filter(x => colorsAt(bar, [x])[0] === String(bar.ssBackgroundDelimiter))
        compare(marked, row.at < 0 ? [] : [row.at])
    }

    function test_alarm_data() {
        return [
            { tag: "dark", sheet: "dark", red: "#e10014" },
            // Without rules for value bars the red of meters stands in.
            { tag: "light", sheet: "light", red: "" }
        ]
    }
    function test_alarm(row) {
        root.sheet = row.sheet
        const bar = barOf("value: 80; delimiterValue: 90; RStyleSet.name: 'small'")
        const meter = make("RMeter {}")
        const spy = spyOn(bar, "alarmChanged")
        const calm = String(bar.ssBackgroundBar)
        verify(!bar.alarm)
        bar.value = 91
        verify(bar.alarm)
        compare(bar.RStyleSet.name, "small red")
        compare(String(bar.ssBackgroundBar), row.red || String(meter.ssBackgroundRed))
        compare(colorsAt(bar, [10])[0], String(bar.ssBackgroundBar))
        bar.value = 90
        compare(bar.RStyleSet.name, "small")
        compare(String(bar.ssBackgroundBar), calm)
        compare(spy.count, 2)
        bar.alarm = true
        bar.value = 10
        verify(bar.alarm, "the page's own")
    }

    function test_nothingIsDoneOutOfSight() {
        const page = make("Item { property Item bar: RWorkspaceItemValueBar { parent: page; width: 100; height: 6; delimiterValue: 50 } id: page }")
        waitForRendering(page)
        const path = spyOn(page.bar.RStyleSet, "pathChanged")
        page.visible = false
        for (let value = 0; value <= 100; ++value)
            page.bar.value = value
        compare(path.count, 0)
        verify(page.bar.alarm)
        page.visible = true
        compare(path.count, 1)
        compare(colorsAt(page.bar, [90])[0], String(page.bar.ssBackgroundBar))
    }
}
