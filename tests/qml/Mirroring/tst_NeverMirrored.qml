import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

// Plots, meters and faders stand as they are on a page that is mirrored.
ThemedTestCase {
    id: root
    name: "NeverMirrored"

    function placesIn(item: Item, origin: Item): var {
        const places = []
        for (let i = 0; i < item.children.length; ++i) {
            const child = item.children[i]
            const place = child.mapToItem(origin, 0, 0)
            const isText = child.text !== undefined && child.effectiveHorizontalAlignment !== undefined
            // A text no wider than itself stands the same however it is aligned.
            const alignment = isText && child.width > child.implicitWidth ? child.effectiveHorizontalAlignment : 0
            places.push([child.toString().split("(")[0], place.x, place.y, child.width, alignment].join(" "))
            places.push(...placesIn(child, origin))
        }
        return places
    }
    function test_places_data() {
        return [
            { tag: "panel", body: "RANC { ancBypassed: true; ambientMeterVisible: true; levelVisible: true }" },
            { tag: "panel with a meter", body: "RAGC { gainMeterVisible: true }" },
            { tag: "numbers", body: "RAxisNumbering { orientation: Qt.Vertical; height: 200; rightSided: true }" },
            { tag: "axis", body: "RAxis { maxValue: 10; tickCount: 10 }" },
            { tag: "meter", body: "RMeter { clipIndicatorSupported: true; faderIndicatorActive: true }" },
            { tag: "lying meter", body: "RMeter { horizontal: true; faderIndicatorActive: true }" },
            { tag: "fader", body: "RFader {}" },
            { tag: "fader, scale on the right", body: "RFader { scaleOnRight: true }" },
            { tag: "frequency plot", body: "RBodeplot { RBodeplotCurve { calculationItems: [RBodeplotEqFilter { gain: 6 }] } RLimiterCurve {} }" },
            { tag: "lying fader", body: "RFader { orientation: Qt.Horizontal }" },
        ]
    }
    function test_places(data) {
        const page = createTemporaryQmlObject("import QtQuick\nimport TambleClient.Control 1.0\n" +
            "Item { width: 400; height: 400; LayoutMirroring.childrenInherit: true; " + data.body + "}", root)
        const item = page.children[0]
        waitForRendering(item)
        const before = placesIn(item, item)
        verify(before.length > 1)
        page.LayoutMirroring.enabled = true
        waitForRendering(item, 50)
        compare(placesIn(item, item).join("\n"), before.join("\n"))
    }
}
