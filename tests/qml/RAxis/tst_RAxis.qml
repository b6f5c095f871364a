import QtQuick
import QtTest
import TambleClient.Control 1.0
import "../Support"

ThemedTestCase {
    id: root
    name: "RAxis"

    function test_layout_data() {
        return [
            { tag: "numbers at the right", body: "", tick: 280, right: 20 },
            { tag: "numbers at the left", body: "; leftSided: true", tick: 280, right: -4 },
            { tag: "reversed", body: "; reverse: true", tick: 0, right: 20 },
        ]
    }
    function test_layout(data) {
        const axis = make("RAxis { maxValue: 10; tickCount: 10" + data.body + "}")
        compare([axis.width, axis.height], [32, 280])
        const first = axis.children[0]
        compare([first.x, first.y, first.width, first.height], [0, data.tick, 4, 1])
        compare(first.color, "#a0a0a0")
        const number = first.children[0]
        compare([number.text, number.x + number.width], ["0", data.right])
        compare(number.y + number.height / 2, 0.5, "centred on its tick")
    }

    function test_wideNumbersStandClearOfTheTicks() {
        const axis = make("RAxis { maxValue: 20000; tickCount: 4 }")
        const numbers = Array.from(axis.children).filter(tick => tick.children.length > 0).map(tick => tick.children[0])
        verify(numbers.every(number => number.x >= 5), "\u2212 would be read")
        verify(numbers.every(number => number.x + number.width === numbers[0].x + numbers[0].width))
    }

    function test_ticksFollowTheRange() {
        const axis = make("RAxis { maxValue: 10; tickCount: 10 }")
        axis.minValue = -10
        compare(axis.children[0].children[0].text, "-10")
    }
}
