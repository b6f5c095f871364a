import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RMeter"

    function partsOf(meter: Item): var {
        return meter.children[1].item
    }

    // Assigned afterwards, since the size of a meter is bound.
    function makeMeter(properties: var): var {
        return Object.assign(make("RMeter {}"), properties)
    }

    function test_size_data() {
        return [
            { tag: "standing", horizontal: false, size: [12, 80], padding: 24 },
            { tag: "lying", horizontal: true, size: [80, 12], padding: 0 },
        ]
    }
    function test_size(data) {
        const meter = makeMeter({ horizontal: data.horizontal })
        compare([meter.width, meter.height], data.size)
        const bar = meter.children[0]
        compare([bar.y, bar.height], [data.padding, data.size[1] - 2 * data.padding])
    }

    function test_marksAreMadeOnDemand() {
        const meter = makeMeter({ height: 148 })
        compare(partsOf(meter), null)
        meter.clipIndicatorSupported = true
        const clip = partsOf(meter).clipIndicator
        compare([clip.y, clip.width, clip.height, clip.visible], [12, 12, 12, true])
        compare(clip.color, "#191919")
        meter.clipIndicatorActive = true
        compare(clip.color, "#e10014")
        compare(partsOf(meter).faderIndicator.visible, false)
    }

    function test_faderMarker_data() {
        return [
            { tag: "linear", body: { faderIndicatorValue: -37 }, y: 50 },
            { tag: "linear at the bottom stays inside", body: { faderIndicatorValue: -80 }, y: 98 },
            { tag: "table", body: { faderIndicatorValue: 0, valueMax: 10, faderIndicatorJtSpread: true }, y: 25 },
            { tag: "exponential", body: { faderIndicatorValue: 6, faderIndicatorExponential: true }, y: 0 },
            { tag: "lying, table", body: { faderIndicatorValue: 0, valueMax: 10, faderIndicatorJtSpread: true, horizontal: true, width: 200 }, x: 146 },
        ]
    }
    function test_faderMarker(data) {
        const meter = makeMeter(Object.assign({ height: 100, faderIndicatorActive: true }, data.body))
        const marker = partsOf(meter).faderIndicator
        if (data.y !== undefined)
            fuzzyCompare(marker.y, data.y, 1e-6)
        if (data.x !== undefined)
            fuzzyCompare(marker.x, data.x, 1e-6)
    }

    // Light leaves it unset on purpose.
    function test_markerWithoutColour() {
        const meter = makeMeter({})
        compare([meter.ssIndicatorColor.valid, meter.ssIndicatorColor], [true, "#005691"])
        root.sheet = "light"
        compare(meter.ssIndicatorColor.valid, false)
        root.sheet = "dark"
        compare(meter.ssIndicatorColor, "#005691")
    }

    function test_startsFromTheBottomWhenShown() {
        const meter = makeMeter({ value: 0 })
        compare(meter.currentValue, 0)
        meter.visible = false
        compare(meter.currentValue, -80)
    }
}
