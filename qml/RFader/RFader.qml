import QtQuick
import TambleClient.Control 1.0

/*! Level fader. A press takes hold of the handle where it is; Shift slows the drag; a double click leads to
    `defaultValue`. Beside a vertical meter of the same height the two share their scale. */
RFaderBase {
    id: root

    RStyleSet.typeName: "RFader"

    /*! Whether the scale has ticks (`showTicks`) and numbers (`showLabels`). */
    property bool showTicks: true
    property bool showLabels: true
    /*! Where the scale of a vertical fader stands; that of a horizontal one is below it then, else above. */
    property bool scaleOnRight: false
    /*! Up to 4 characters on the handle. */
    property string handleText: ""
    /*! Shows a bar in the track from `trackIndicatorFrom` to `trackIndicatorValue`, the level really in force. */
    property bool trackIndicatorVisible: false
    /*! The range in dB for assistive tools: `minimumValue` and `maximumValue`. */
    readonly property real minimumValue: root.from
    readonly property real maximumValue: root.to

    property color ssBackground: root.RStyleSet.props.background
    property color ssColor: root.RStyleSet.props.foreground
    property color ssIndexBelow: root.RStyleSet.props.indexBelow
    property color ssIndexAbove: root.RStyleSet.props.indexAbove
    property color ssHandle: root.RStyleSet.props.handle
    property color ssHandleHover: root.RStyleSet.props.isSet("handle-hover") ? root.RStyleSet.props.handleHover : root.ssHandle
    property color ssHandleInconsistent: root.RStyleSet.props.isSet("handle-inconsistent") ? root.RStyleSet.props.handleInconsistent : root.ssHandle
    property color ssHandleBorder: root.RStyleSet.props.isSet("handle-border") ? root.RStyleSet.props.handleBorder : "transparent"
    property color ssHandleBorderFocus: root.RStyleSet.props.isSet("handle-border-focus") ? root.RStyleSet.props.handleBorderFocus
                                        : probe.item ? (probe.item as RFocusRectangle).ssBorderColor : "transparent"
    property color ssHandleLine: root.RStyleSet.props.handleLine
    property color ssHandleLineHover: root.RStyleSet.props.isSet("handle-line-hover") ? root.RStyleSet.props.handleLineHover : root.ssHandleLine
    property color ssTick: root.RStyleSet.props.tick
    property color ssExtraTick: root.RStyleSet.props.extraTick
    property color ssTrack: root.RStyleSet.props.isSet("track") ? root.RStyleSet.props.track : root.ssIndexBelow
    property color ssTrackIndicator: root.RStyleSet.props.isSet("track-indicator") ? root.RStyleSet.props.trackIndicator : root.ssHandleBorderFocus

    RStyleSet.stateHelper.hovered: root.hovered
    RStyleSet.stateHelper.pressed: root.pressed
    RStyleSet.stateHelper.disabled: !root.enabled
    RStyleSet.stateHelper.focus: root.activeFocus
    RStyleSet.stateHelper.readOnly: root.readOnly
    RStyleSet.stateHelper.inconsistent: !root.consistent

    /*! Whether there is a scale. */
    readonly property bool scaleVisible: root.showTicks || root.showLabels
    // A sheet without a line colour for mixed faders may have one that cannot be seen on them.
    /*! Colour of the dash on the handle of a mixed fader. */
    readonly property color mixedLine: Math.abs(root.ssHandleLine.hslLightness - root.ssHandleInconsistent.hslLightness) < 0.25 ? root.ssIndexBelow : root.ssHandleLine
    /*! Size in pixels across the travel. */
    readonly property real breadth: (root.scaleVisible ? 56 : 32) * RThemeValues.unit

    implicitWidth: root.vertical ? root.breadth : 280 * RThemeValues.unit
    implicitHeight: root.vertical ? 280 * RThemeValues.unit : root.breadth
    hoverEnabled: RThemeValues.hoverEnabled
    travelInset: 24 * RThemeValues.unit
    labelSpacing: (root.vertical ? 14 : 24) * RThemeValues.unit
    detentReach: 4 * RThemeValues.unit
    trackIndicatorValue: root.from
    trackIndicatorFrom: root.from
    handle: knob

    background: Rectangle {
        visible: root.ssBackground.a > 0
        color: root.ssBackground
    }

    // A horizontal fader is a vertical one lying on its side: everything in here is laid out upright.
    Item {
        id: rail

        readonly property real span: Math.max(0, rail.height - 2 * root.travelInset)
        readonly property real knobPlace: rail.placeOf(root.travelPosition)
        readonly property real scaleSide: root.scaleOnRight ? 1 : -1
        readonly property real middle: Math.round(rail.width / 2 - (root.scaleVisible ? rail.scaleSide * 12 * RThemeValues.unit : 0))

        function placeOf(position: real): real {
            return Math.round(root.travelInset + (1 - position) * rail.span)
        }

        x: root.vertical ? 0 : root.width
        width: root.vertical ? root.width : root.height
        height: root.vertical ? root.height : root.width
        rotation: root.vertical ? 0 : 90
        transformOrigin: Item.TopLeft
        LayoutMirroring.enabled: false
        LayoutMirroring.childrenInherit: true

        // qmllint disable unqualified
        Repeater {
            model: root.scaleVisible ? root.marks : []
            RFaderTick {
                place: rail.placeOf(modelData.position)
                edge: rail.middle + rail.scaleSide * 22 * RThemeValues.unit
                rightSided: root.scaleOnRight
                upright: root.vertical
                lineVisible: root.showTicks
                labelVisible: root.showLabels
                lineColor: modelData.extra ? root.ssExtraTick : root.ssTick
                labelColor: root.ssColor
            }
        }
        // qmllint enable unqualified
        Rectangle {
            id: track
            x: rail.middle - track.width / 2
            y: root.travelInset
            width: 12 * RThemeValues.unit
            height: rail.span
            color: root.ssTrack

            Loader {
                active: root.trackIndicatorVisible
                y: rail.placeOf(root.trackIndicatorTop) - track.y
                // qmllint disable unqualified
                sourceComponent: Rectangle {
                    width: track.width
                    height: rail.placeOf(root.trackIndicatorBottom) - rail.placeOf(root.trackIndicatorTop)
                    color: root.ssTrackIndicator
                }
                // qmllint enable unqualified
            }
            Rectangle {
                x: 4 * RThemeValues.unit
                width: 4 * RThemeValues.unit
                height: rail.knobPlace - track.y
                color: root.ssIndexAbove
            }
            Rectangle {
                id: below
                x: 4 * RThemeValues.unit
                y: rail.knobPlace - track.y
                width: 4 * RThemeValues.unit
                height: track.height - below.y
                color: root.ssIndexBelow
            }
        }
        RFaderHandle {
            id: knob
            x: rail.middle - knob.width / 2
            y: rail.knobPlace - knob.height / 2
            opacity: root.enabled && root.from !== root.to ? 1 : 0.5
            color: !root.consistent ? root.ssHandleInconsistent : root.hovered || root.pressed ? root.ssHandleHover : root.ssHandle
            lineColor: !root.consistent ? root.mixedLine : root.hovered || root.pressed ? root.ssHandleLineHover : root.ssHandleLine
            border.color: root.activeFocus ? root.ssHandleBorderFocus : root.ssHandleBorder
            border.width: (root.activeFocus ? 2 : 1) * RThemeValues.unit
            text: root.handleText
            upright: root.vertical
            mixed: !root.consistent
            pending: !root.confirmed
        }
    }
    Loader {
        id: probe
        active: (root.activeFocus || root.trackIndicatorVisible) && !root.RStyleSet.props.isSet("handle-border-focus")
        sourceComponent: RFocusRectangle {
            visible: false
        }
    }
}
