import QtQuick
import TambleClient.Control 1.0

/*! Numbers along one side of a plot: below it or, vertical, on its left or right. Those without room are left out. */
Item {
    id: root

    RStyleSet.typeName: "RAxis"

    /*! The axis from `from` (left or bottom) to `to`, in its unit, with a number at each multiple of `step`. */
    property real from: -60
    property real to: 20
    property real step: 10
    /*! Qt.Horizontal for numbers below a plot, Qt.Vertical for numbers beside it. */
    property int orientation: Qt.Horizontal
    /*! Vertical numbers stand on the right of the plot. */
    property bool rightSided: false
    /*! Appended to the last number. */
    property string unit
    /*! -1 for as many as the step has. */
    property int decimals: -1
    /*! Size of the numbers in pixels. */
    property real fontSize: RThemeValues.fontSizeXS

    property color ssColor: root.RStyleSet.props.foreground

    /*! Whether the numbers stand below the plot. */
    readonly property bool horizontal: root.orientation === Qt.Horizontal
    /*! The font of the numbers. */
    readonly property font numberFont: Qt.font({ family: RThemeValues.fontFamily, pixelSize: RThemeValues.fontPixels(root.fontSize) })

    implicitWidth: (root.horizontal ? 80 : 28) * RThemeValues.unit
    implicitHeight: (root.horizontal ? 16 : 80) * RThemeValues.unit
    Accessible.ignored: true

    RNumberingHelper {
        id: numbering
        from: root.from
        to: root.to
        step: root.step
        decimals: root.decimals
        unit: root.unit
    }
    // qmllint disable unqualified
    Repeater {
        model: RPlotRules.shownNumbers(numbering.labels, root.numberFont, root.horizontal ? root.width : root.height, root.horizontal)

        RText {
            required property var modelData
            readonly property real start: modelData.start

            x: Math.round(root.horizontal ? start : root.rightSided ? 0 : root.width - width)
            y: Math.round(root.horizontal ? (root.height - height) / 2 : start)
            text: modelData.text
            color: root.ssColor
            font: root.numberFont
        }
    }
    // qmllint enable unqualified
}
