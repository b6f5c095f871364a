import QtQuick
import TambleClient.Control 1.0

/*! Level meter with a green, a yellow and a red zone, a clip indicator and a marker for the position of a fader. */
RMeterBase {
    id: root

    /*! Whether the meter lies and grows to the right. */
    property bool horizontal: false
    /*! Whether the bar grows from its other end, as for a gain reduction. */
    property bool reverse: false
    /*! Pixels above (`paddingTop`) and below (`paddingBottom`) the bar; a fader of the same height has as many around
        its travel. */
    property real paddingTop: root.horizontal ? 0 : 24 * RThemeValues.unit
    property real paddingBottom: root.horizontal ? 0 : 24 * RThemeValues.unit
    /*! Unit of the levels, for assistive tools. */
    property string unit: "dB"

    /*! The clip indicator above the bar: whether there is one (`clipIndicatorSupported`) and whether it is lit
        (`clipIndicatorActive`). */
    property bool clipIndicatorSupported: false
    property bool clipIndicatorActive: false

    /*! The marker for a fader: `faderIndicatorActive` shows it at the level `faderIndicatorValue` (dB) by the fader's
        law, `faderIndicatorExponential`, `faderIndicatorJtSpread` (piecewise linear) or else linear. */
    property bool faderIndicatorActive: false
    property bool faderIndicatorExponential: false
    property bool faderIndicatorJtSpread: false
    property double faderIndicatorValue: 0.0
    /*! Linear gains of `valueMax` and `valueMin`, for the exponential law: `expRangeMax` and `expRangeMin`. */
    property real expRangeMax: 0.6881389342 * Math.exp(0.0386727493 * root.valueMax)
    property real expRangeMin: 0.6881389342 * Math.exp(0.0386727493 * root.valueMin)

    property color ssBackground: root.RStyleSet.props.background
    property color ssBackgroundGreen: root.RStyleSet.props.backgroundGreen
    property color ssBackgroundYellow: root.RStyleSet.props.backgroundYellow
    property color ssBackgroundRed: root.RStyleSet.props.backgroundRed
    property color ssClipIndicatorColor: root.RStyleSet.props.clipIndicatorColor
    property color ssIndicatorColor: root.RStyleSet.props.isSet("indicator-color") ? root.RStyleSet.props.indicatorColor : root.noColor
    /*! The colour of what a sheet leaves unset: never assigned, so it is not valid. */
    property color noColor

    width: (root.horizontal ? 80 : 12) * RThemeValues.unit
    height: (root.horizontal ? 12 : 80) * RThemeValues.unit
    onVisibleChanged: root.reset()

    RMeterBar {
        y: root.paddingTop
        width: root.width
        height: root.height - root.paddingTop - root.paddingBottom
        meter: root
        horizontal: root.horizontal
        reverse: root.reverse
        ground: root.ssBackground
        green: root.ssBackgroundGreen
        yellow: root.ssBackgroundYellow
        red: root.ssBackgroundRed
        unit: root.unit
    }
    Loader {
        active: root.clipIndicatorSupported || root.faderIndicatorActive
        // qmllint disable unqualified
        sourceComponent: Item {
            id: marks

            readonly property Rectangle clipIndicator: clip
            readonly property Rectangle faderIndicator: marker

            readonly property real markerTravel: root.horizontal ? root.width : root.height
            /*! How far the marker lies below the top, or from the right, in pixels. */
            readonly property real markerOffset: {
                if (root.faderIndicatorJtSpread) {
                    const share = transfer.fromUnitToNormalized(root.faderIndicatorValue, root.valueMin, root.valueMax)
                    return transfer.scale(share, [1, 0], [0, marks.markerTravel])
                }
                if (root.faderIndicatorExponential) {
                    const gain = 0.6881389342 * Math.exp(0.0386727493 * root.faderIndicatorValue)
                    return transfer.scale(gain, [root.expRangeMin, root.expRangeMax], [marks.markerTravel, 0])
                }
                // Counted along the height in both positions of the meter; pages rely on it.
                const share = (root.faderIndicatorValue - root.valueMax) / (root.valueMin - root.valueMax)
                return Math.min(root.height * share, root.height - marker.height)
            }

            TransferFunctions {
                id: transfer
            }
            Rectangle {
                id: clip
                y: root.paddingTop - root.width
                width: root.width
                height: root.width
                visible: root.clipIndicatorSupported
                color: root.clipIndicatorActive ? root.ssClipIndicatorColor : root.ssBackground
            }
            Rectangle {
                id: marker
                x: root.horizontal ? root.width - marker.width - marks.markerOffset : 0
                y: root.horizontal ? 0 : marks.markerOffset
                width: root.horizontal ? root.width / 50 : root.width
                height: root.horizontal ? root.height : root.height / 50
                visible: root.faderIndicatorActive
                color: root.ssIndicatorColor
            }
        }
        // qmllint enable unqualified
    }
}
