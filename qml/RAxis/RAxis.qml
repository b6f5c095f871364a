import QtQuick
import TambleClient.Control 1.0

/*! Vertical axis of values with ticks and numbers. */
RAxisTemplate {
    id: root

    /*! Size of a tick in pixels, `tickWidth` by `tickHeight`. */
    property real tickWidth: 4 * RThemeValues.unit
    property real tickHeight: RThemeValues.unit
    /*! Draws the lowest value at the top. */
    property bool reverse: false
    /*! Numbers to the left of the ticks instead of to their right. */
    property bool leftSided: false

    /*! Pixels from a tick to the end of the numbers to its right, which are wider than usual where one of them is. */
    readonly property real numberRoom: Math.max(16 * RThemeValues.unit, metrics.widest(root.ticks) + 2 * RThemeValues.unit) // qmllint disable

    property color ssColor: root.RStyleSet.props.foreground
    property color ssTickColor: root.RStyleSet.props.tick

    RStyleSet.stateHelper.focus: false

    implicitWidth: 32 * RThemeValues.unit
    implicitHeight: 280 * RThemeValues.unit
    Accessible.ignored: true

    FontMetrics {
        id: metrics

        function widest(ticks: var): real {
            return Math.max(0, ...Array.from(ticks, tick => metrics.advanceWidth(tick.label)))
        }

        font.family: RThemeValues.fontFamily
        font.pixelSize: RThemeValues.fontSizeXS
    }
    Repeater {
        model: root.ticks // qmllint disable

        // qmllint disable unqualified
        Rectangle {
            id: tick

            required property var modelData

            y: root.reverse ? root.height - tick.modelData.y : tick.modelData.y
            width: root.tickWidth
            height: root.tickHeight
            color: root.ssTickColor

            RText {
                id: number
                // Not by alignment, which a page could mirror.
                x: (root.leftSided ? -4 * RThemeValues.unit : tick.width + root.numberRoom) - number.width
                y: (tick.height - number.height) / 2
                text: tick.modelData.label
                color: root.ssColor
                font.pixelSize: RThemeValues.fontSizeXS
            }
        }
        // qmllint enable unqualified
    }
}
