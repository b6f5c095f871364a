import QtQuick
import TambleClient.Control 1.0

/*! Frequency response of a set of filters in a plot frame, with handles to edit them: the left button or a finger drags
    frequency and gain, the right button Q; a double click sets 0 dB.

    Keys: Tab goes from handle to handle by frequency. Left and Right move a handle by 1/6 octave (1/24 with Shift, 1
    with Ctrl), Up and Down by 0.5 dB (0.1 with Shift, 3 with Ctrl), PageUp and PageDown change its Q; End sets 0 dB,
    Esc takes the gesture back. */
RBodeplotCurveTemplate {
    id: root

    RStyleSet.typeName: "RBodeplotCurve"

    /*! A handle is being dragged. */
    property bool pressed: root.heldPoints > 0
    /*! Shows the curves without their handles. */
    property bool hidePoints: false
    /*! Handle that has the keyboard focus, -1 for none. */
    property int focusedPoint: -1
    /*! A gesture, of a pointer or of keys, has changed a filter and is not over. */
    readonly property bool editing: root.changingPoints > 0
    /*! How many handles are held, each by a finger of its own (`heldPoints`), and how many are being changed
        (`changingPoints`). */
    property int heldPoints: 0
    property int changingPoints: 0

    property color ssAggregatedCurve: root.RStyleSet.props.aggregatedCurve
    property color ssAggregatedArea: root.RStyleSet.props.aggregatedArea
    property color ssIndividualCurve: root.RStyleSet.props.individualCurve
    property color ssBypassCurve: root.RStyleSet.props.bypassCurve
    property color ssSelectedCurve: root.RStyleSet.props.selectedCurve

    /*! What the surrounding frame says about its axes, or `fallback` outside a frame. */
    function fromFrame(name: string, fallback: real): real {
        const value = root.parent ? root.parent[name] : undefined
        return value === undefined ? fallback : value
    }

    /*! Gives the handle at `index` the keyboard focus; false when there is none. */
    function focusPoint(index: int): bool {
        const handle = index < 0 ? null : handles.itemAt(index)
        if (handle)
            handle.forceActiveFocus(Qt.TabFocusReason)
        return handle !== null
    }

    /*! Gives the keyboard focus to the next handle by frequency, or behind the last to what follows the curve. */
    function walkPoints(handle: RBodeplotFilterPoint, forwards: bool) {
        if (root.focusPoint(root.nextFilterPoint(handle.index, forwards)))
            return
        // From a handle, which is no stop itself, Qt would go on from the nearest ancestor that is one, such as a page
        // that scrolls, and never get out.
        const next = handle.nextItemInFocusChain(forwards)
        next?.forceActiveFocus(forwards ? Qt.TabFocusReason : Qt.BacktabFocusReason)
    }

    anchors.fill: parent
    xMinimum: root.fromFrame("xMinimum", 20)
    xMaximum: root.fromFrame("xMaximum", 20000)
    yMinimum: root.fromFrame("yMinimum", -18)
    yMaximum: root.fromFrame("yMaximum", 18)
    Accessible.role: Accessible.Graphic
    Accessible.name: qsTr("Filters")
    style: QtObject {
        readonly property color aggregatedCurveColor: root.ssAggregatedCurve
        readonly property color aggregatedAreaColor: root.ssAggregatedArea
        readonly property color individualCurveColor: root.ssIndividualCurve
        readonly property color bypassCurveColor: root.ssBypassCurve
        readonly property color selectedCurveColor: root.ssSelectedCurve
        readonly property real aggregatedCurveLineWidth: 2 * RThemeValues.unit
        readonly property real individualCurveLineWidth: RThemeValues.unit
        readonly property real bypassCurveLineWidth: RThemeValues.unit
        readonly property real selectedCurveLineWidth: 2.5 * RThemeValues.unit
        readonly property real areaSaturationNearAggregatedCurve: 0.8
        readonly property real areaSaturationNearxAchsis: 0.1
    }

    // The one stop for the Tab key from outside, which goes on to the lowest frequency.
    Item {
        id: tabStop
        activeFocusOnTab: handles.count > 0 && root.focusedPoint < 0
        onActiveFocusChanged: {
            if (tabStop.activeFocus)
                root.focusPoint(root.nextFilterPoint(-1, true))
        }
    }
    Repeater {
        id: handles
        // qmllint disable
        model: root.enabled && !root.hidePoints ? root.filterPointModels : []
        // qmllint enable

        // qmllint disable unqualified
        RBodeplotFilterPoint {
            id: handle

            required property var modelData
            readonly property point spot: handle.modelData.point
            // What a screen reader announces beside the description.
            readonly property real value: handle.frequency
            readonly property real minimumValue: root.xMinimum
            readonly property real maximumValue: root.xMaximum
            property real qualityAtPress: 0

            function hold() {
                handle.qualityAtPress = handle.quality
                root.holdFilterPoint(handle.index)
            }

            place: Qt.point(root.width * handle.spot.x, root.height * handle.spot.y)
            visible: handle.spot.x >= 0 && handle.spot.x <= 1 && handle.spot.y >= 0 && handle.spot.y <= 1
            index: handle.modelData.index
            label: handle.modelData.label
            selected: handle.modelData.selected
            errorFlag: handle.modelData.errorFlag
            quality: handle.modelData.quality
            visiblePoint: handle.modelData.visiblePoint
            frequency: handle.modelData.frequency
            gain: handle.modelData.gain
            hasGain: handle.modelData.hasGain
            hasQuality: handle.modelData.hasQuality
            showQuality: handle.turning && handle.turnable
            rightButton: true
            turnable: handle.modelData.dragsQuality
            takesWheel: handle.turnable && handle.selected
            Accessible.onIncreaseAction: handle.stepBy(1, 0)
            Accessible.onDecreaseAction: handle.stepBy(-1, 0)
            Component.onDestruction: {
                if (root.focusedPoint === handle.index)
                    root.focusedPoint = -1
                if (handle.dragging)
                    root.heldPoints -= 1
                if (handle.changing)
                    root.changingPoints -= 1
                if (handle.dragging || handle.changing)
                    root.releaseFilterPoint()
            }

            onActiveFocusChanged: {
                if (handle.activeFocus) {
                    root.focusedPoint = handle.index
                    if (!handle.dragging && !handle.selected)
                        root.onUserSelectFilterPoint(handle.index)
                } else if (root?.focusedPoint === handle.index) { // null while the curve goes
                    root.focusedPoint = -1
                }
            }
            onDraggingChanged: root.heldPoints += handle.dragging ? 1 : -1
            onChangingChanged: root.changingPoints += handle.changing ? 1 : -1
            onTaken: {
                handle.hold()
                root.onUserSelectFilterPoint(handle.index)
            }
            onBegun: handle.hold()
            onMovedTo: (x, y) => root.onUserMoveFilterPoint(handle.index, Qt.point(Math.max(0, Math.min(1, x / root.width)), Math.max(0, Math.min(1, y / root.height))))
            onTurned: way => root.onUserChangeFilterPointQuality(handle.index, handle.qualityAtPress, way)
            // An arrow is a sixth of an octave or half a decibel.
            onStepped: (right, up, fine) => root.stepFilterPoint(handle.index, fine ? right * 5 / 24 : right / 6, up / 2)
            onPaged: up => {
                if (handle.turnable)
                    root.onUserChangeFilterPointQuality(handle.index, handle.quality, -8 * up)
            }
            onEnded: root.releaseFilterPoint(handle.index)
            onCanceled: {
                root.cancelFilterPoint(handle.index)
                root.releaseFilterPoint(handle.index)
            }
            onDropped: root.releaseFilterPoint(handle.index)
            onResetRequested: {
                if (!handle.hasGain)
                    return
                handle.open()
                root.levelFilterPoint(handle.index)
                handle.close()
            }

            Keys.onTabPressed: root.walkPoints(handle, true)
            Keys.onBacktabPressed: root.walkPoints(handle, false)
        }
        // qmllint enable unqualified
    }
}
