import QtQuick
import QtTest
import TambleClient.Control 1.0

TestCase {
    id: root
    name: "RTheme"

    Component {
        id: themeComponent
        RTheme {}
    }

    function test_sizesFollowTheZoomFactors() {
        const theme = createTemporaryObject(themeComponent, root)
        compare(theme.dp(10), 10)
        compare(theme.fontSizeM, 12)
        theme.setDpAutoZoomFactor(1.5)
        compare(theme.dp(10), 15)
        compare(theme.fontSizeM, 18)
        theme.setDpZoomFactor(2)
        compare(theme.dp(10), 20, "a factor of the user's own wins over the automatic one")
        theme.setDpZoomFactor(0)
        compare(theme.dp(10), 15)
    }

    function test_zoomChangesPulseTheLoadFlag() {
        const theme = createTemporaryObject(themeComponent, root)
        const seen = []
        theme.dpLoadFlagChanged.connect(() => seen.push([theme.dpLoadFlag, theme.dpZoomFactor]))
        theme.setDpZoomFactor(0)
        compare(seen, [])
        theme.setDpZoomFactor(2)
        compare(seen, [[false, 0], [true, 2]])
    }

    function test_convertRange_data() {
        return [
            { tag: "inside", value: 5, source: [0, 10], target: [0, 100], plain: 50, clipped: 50 },
            { tag: "beyond", value: 12, source: [0, 10], target: [0, 100], plain: 120, clipped: 100 },
            { tag: "below", value: -2, source: [0, 10], target: [-10, 10], plain: -14, clipped: -10 },
            { tag: "reversed source", value: -80, source: [10, -80], target: [0, 1], plain: 1, clipped: 1 }
        ]
    }
    function test_convertRange(row) {
        const theme = createTemporaryObject(themeComponent, root)
        compare(theme.convertRange(row.value, row.source, row.target), row.plain)
        compare(theme.convertRangeClipped(row.value, row.source, row.target), row.clipped)
    }
}
