import QtQuick
import TambleClient.Control 1.0
import "../Shared" as Shared

/*! Frequency response of a set of filters in a plot frame, with handles to edit them: the left button drags frequency
    and gain, the right button Q. */
RBodeplotCurveTemplate {
    id: root

    RStyleSet.typeName: "RBodeplotCurve"

    /*! A handle is being dragged. */
    property bool pressed: false
    property bool hidePoints: false
    /*! Handle that has the keyboard focus, -1 for none. */
    property int focusedPoint: -1

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
            readonly property point place: handle.modelData.point
            // What a screen reader announces beside the description.
            readonly property real value: handle.frequency
            readonly property real minimumValue: root.xMinimum
            readonly property real maximumValue: root.xMaximum

            /*! A step of the keys, in parts of the curve's size. */
            function step(across: real, down: real) {
                root.holdFilterPoint(handle.index)
                root.onUserMoveFilterPoint(handle.index, Qt.point(Math.max(0, Math.min(1, handle.place.x + across)), Math.max(0, Math.min(1, handle.place.y + down))))
                root.releaseFilterPoint()
            }

            function stepQuality(change: real) {
                if (!handle.modelData.dragsQuality)
                    return
                root.holdFilterPoint(handle.index)
                root.onUserChangeFilterPointQuality(handle.index, handle.quality, change)
                root.releaseFilterPoint()
            }

            x: root.width * handle.place.x - width / 2
            y: root.height * handle.place.y - height * 3 / 4
            width: implicitWidth
            height: implicitHeight
            z: handle.selected ? 1 : 0
            visible: handle.place.x >= 0 && handle.place.x <= 1 && handle.place.y >= 0 && handle.place.y <= 1
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
            showQuality: pointer.changesQuality
            Accessible.onIncreaseAction: handle.step(1 / 200, 0)
            Accessible.onDecreaseAction: handle.step(-1 / 200, 0)
            onActiveFocusChanged: {
                if (handle.activeFocus)
                    root.focusedPoint = handle.index
                else if (root.focusedPoint === handle.index)
                    root.focusedPoint = -1
            }
            Component.onDestruction: {
                if (root.focusedPoint === handle.index)
                    root.focusedPoint = -1
                if (pointer.dragging) {
                    root.releaseFilterPoint()
                    pointer.end()
                }
            }

            Keys.onTabPressed: event => event.accepted = root.focusPoint(root.nextFilterPoint(handle.index, true))
            Keys.onBacktabPressed: event => event.accepted = root.focusPoint(root.nextFilterPoint(handle.index, false))
            Keys.onPressed: event => {
                const pace = event.modifiers & Qt.ShiftModifier ? 0.1 : 1
                switch (event.key) {
                case Qt.Key_Left:
                    handle.step(-pace / 200, 0)
                    break
                case Qt.Key_Right:
                    handle.step(pace / 200, 0)
                    break
                case Qt.Key_Up:
                    handle.step(0, -pace / 100)
                    break
                case Qt.Key_Down:
                    handle.step(0, pace / 100)
                    break
                case Qt.Key_PageUp:
                    handle.stepQuality(-8)
                    break
                case Qt.Key_PageDown:
                    handle.stepQuality(8)
                    break
                case Qt.Key_Escape:
                    if (!pointer.dragging)
                        return
                    // First the values, so that a page that closes its undo step with `pressed` has them in it.
                    root.cancelFilterPoint()
                    root.releaseFilterPoint()
                    pointer.end()
                    break
                default:
                    return
                }
                event.accepted = true
            }

            MouseArea {
                id: pointer

                property bool dragging: false
                property bool changesQuality: false
                property point pressPlace
                property real baseQuality

                function end() {
                    dragging = false
                    changesQuality = false
                    root.pressed = false
                }

                // Around the disc.
                x: (parent.width - width) / 2
                y: (parent.width - height) / 2
                width: 44 * RThemeValues.unit
                height: width
                containmentMask: Shared.RCircleMask {
                    area: pointer
                }
                acceptedButtons: Qt.LeftButton | Qt.RightButton
                preventStealing: true
                onPressed: mouse => {
                    handle.forceActiveFocus(Qt.MouseFocusReason)
                    pressPlace = mapToItem(root, mouse.x, mouse.y)
                    baseQuality = handle.quality
                    dragging = true
                    changesQuality = mouse.button === Qt.RightButton && handle.modelData.dragsQuality
                    root.pressed = true
                    root.holdFilterPoint(handle.index)
                    root.onUserSelectFilterPoint(handle.index)
                }
                onPositionChanged: mouse => {
                    if (!dragging)
                        return
                    const place = mapToItem(root, mouse.x, mouse.y)
                    if (changesQuality)
                        root.onUserChangeFilterPointQuality(handle.index, baseQuality, place.y - pressPlace.y)
                    else if (mouse.buttons & Qt.LeftButton && place !== pressPlace)
                        root.onUserMoveFilterPoint(handle.index, Qt.point(Math.max(0, Math.min(1, place.x / root.width)), Math.max(0, Math.min(1, place.y / root.height))))
                }
                onReleased: {
                    if (dragging)
                        root.releaseFilterPoint()
                    end()
                }
                onCanceled: {
                    if (dragging) {
                        root.cancelFilterPoint()
                        root.releaseFilterPoint()
                    }
                    end()
                }
                onDoubleClicked: mouse => {
                    if (mouse.button !== Qt.LeftButton || !handle.hasGain)
                        return
                    root.levelFilterPoint(handle.index)
                    root.releaseFilterPoint()
                    end()
                }
                onWheel: wheel => {
                    wheel.accepted = handle.selected && (wheel.modifiers & Qt.ControlModifier) !== 0
                    if (wheel.accepted)
                        handle.stepQuality(-8 * wheel.angleDelta.y / 120)
                }
            }
        }
        // qmllint enable unqualified
    }
}
