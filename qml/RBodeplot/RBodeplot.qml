import QtQuick
import TambleClient.Control 1.0

/*! Frame of a frequency plot: grid, axes and, inside them, the page's curves. The wheel and two fingers only tell the
    page how far they moved (`twoFingerHorizontalChange`), unless `wheelZooms`; dragging moves a zoomed plot.

    Keys: Plus and Minus zoom the levels or, after Space, the frequencies; Left and Right move a zoomed plot by a
    twentieth of its width. */
RBodeplotTemplate {
    id: root

    /*! Whether the axes have numbers. */
    property bool showAxis: true
    /*! Whether keys and wheel zoom and pan. */
    property bool allowZoom: true
    /*! Sets off the 0 dB line. */
    property bool dedicatedXAxisLine: true
    /*! In pixels: `fontSizeAxis` of the numbers, `spacingAxis` around the plot area. */
    property real fontSizeAxis: RThemeValues.fontSizeXS
    property real spacingAxis: 8 * RThemeValues.unit
    /*! Name for assistive tools. */
    property string label: qsTr("Frequency response")
    /*! Lets the wheel zoom, a step per notch, instead of being passed to the page. */
    property bool wheelZooms: false
    /*! Whether zooming changes the frequencies, not the levels. The middle button and the space bar toggle it. */
    property bool zoomsFrequencies: false
    /*! The curves. They may draw, and their handles may reach, into the spacing around the plot area. */
    default property alias content: placeholder.data

    /*! Two fingers moved apart (above 0) or together, or the wheel turned. */
    signal twoFingerHorizontalChange(real deltaX)

    /*! A step along the axis that is zoomed; `direction` as in RBodeplotZoomEnum. */
    function zoom(direction: int) {
        if (root.zoomsFrequencies)
            root.zoomXAxis(direction)
        else
            root.zoomYAxis(direction)
    }

    /*! Moves the plot by part of its width; above 0 towards higher frequencies. */
    function pan(share: real) {
        const centre = root.zoomAreaWidth / 2
        root.onMousePressed(centre)
        root.onMousePositionChanged(centre - share * root.zoomAreaWidth)
    }

    implicitWidth: 480 * RThemeValues.unit
    implicitHeight: 280 * RThemeValues.unit
    yMaximum: 25
    yMinimum: -25
    xMinimum: 20
    xMaximum: 20000
    xIncrement: 0
    yIncrement: 10
    zoomAreaWidth: zoomArea.width
    enableZooming: true
    Accessible.role: Accessible.Chart
    Accessible.name: root.label
    Accessible.description: qsTr("%1 to %2 Hz, %3 to %4 dB").arg(Math.round(root.xMinimum)).arg(Math.round(root.xMaximum)).arg(root.yMinimum).arg(root.yMaximum)

    Keys.enabled: root.allowZoom
    Keys.onPressed: event => {
        switch (event.key) {
        case Qt.Key_Plus:
            root.zoom(RBodeplotZoomEnum.ZOOM_IN)
            break
        case Qt.Key_Minus:
            root.zoom(RBodeplotZoomEnum.ZOOM_OUT)
            break
        case Qt.Key_Left:
            root.pan(-0.05)
            break
        case Qt.Key_Right:
            root.pan(0.05)
            break
        case Qt.Key_Space:
            root.zoomsFrequencies = !root.zoomsFrequencies
            break
        default:
            return
        }
        event.accepted = true
    }
    Component.onCompleted: {
        root.setDefaultXMinimum(root.xMinimum)
        root.setDefaultXMaximum(root.xMaximum)
        root.setDeltaX(1.15)
        root.setMinLogDistance(1.5)
        root.setDeltaY(2.5)
        root.setMinYAxis(12.5)
        root.setMaxYAxis(40)
    }

    Rectangle {
        anchors.fill: parent
        color: grid.ssBackground
        Accessible.ignored: true
    }
    RBodeplotGrid {
        id: grid
        LayoutMirroring.enabled: false
        LayoutMirroring.childrenInherit: true
        anchors.fill: parent
        anchors.margins: root.spacingAxis
        anchors.leftMargin: root.spacingAxis + (root.showAxis ? yAxis.width : 0)
        anchors.bottomMargin: root.spacingAxis + (root.showAxis ? xAxis.height : 0)
        xMinimum: root.xMinimum
        xMaximum: root.xMaximum
        yMinimum: root.yMinimum
        yMaximum: root.yMaximum
        xIncrement: root.xIncrement
        yIncrement: root.yIncrement
        xAxisScale: root.xAxisScale
        yAxisScale: root.yAxisScale
        xAxisTickValues: root.xAxisTickValues
        yAxisTickValues: root.yAxisTickValues
        dedicatedXAxisLine: root.dedicatedXAxisLine

        PinchArea {
            id: zoomArea

            property real lastDistance: 0

            anchors.fill: parent
            activeFocusOnTab: root.allowZoom
            onPinchUpdated: pinch => {
                const distance = Math.abs(pinch.point1.x - pinch.point2.x)
                const ratio = distance / lastDistance
                if (distance > 0.5 && lastDistance > 0.5 && ratio > 0.7 && ratio < 1.43)
                    root.twoFingerHorizontalChange(Math.log(ratio))
                lastDistance = distance
            }
            onPinchFinished: lastDistance = 0

            MouseArea {
                property real turned: 0

                anchors.fill: parent
                acceptedButtons: Qt.LeftButton | Qt.MiddleButton
                preventStealing: true
                onPressed: mouse => {
                    zoomArea.forceActiveFocus(Qt.MouseFocusReason)
                    if (mouse.button === Qt.MiddleButton)
                        root.zoomsFrequencies = !root.zoomsFrequencies
                    else
                        root.onMousePressed(mouse.x)
                }
                onPositionChanged: mouse => {
                    if (mouse.buttons & Qt.LeftButton)
                        root.onMousePositionChanged(mouse.x)
                }
                // Unless the page lets it zoom, the wheel is the page's: only a turn to the side gets to the zooming.
                onWheel: wheel => {
                    const zooms = root.allowZoom && wheel.buttons === Qt.NoButton
                    if (root.wheelZooms) {
                        turned += zooms ? wheel.angleDelta.y : 0
                        for (; Math.abs(turned) >= 120; turned -= Math.sign(turned) * 120)
                            root.zoom(turned < 0 ? RBodeplotZoomEnum.ZOOM_IN : RBodeplotZoomEnum.ZOOM_OUT)
                    } else if (wheel.angleDelta.y !== 0) {
                        root.twoFingerHorizontalChange(wheel.angleDelta.y * 0.001)
                    } else if (zooms) {
                        root.zoom(RBodeplotZoomEnum.ZOOM_OUT)
                    }
                    wheel.accepted = root.wheelZooms ? zooms && wheel.angleDelta.y !== 0 : zooms || wheel.angleDelta.y !== 0
                }
            }
        }
        Item {
            anchors.fill: parent
            anchors.margins: -root.spacingAxis
            clip: true

            Item {
                id: placeholder

                readonly property real xMinimum: root.xMinimum
                readonly property real xMaximum: root.xMaximum
                readonly property real yMinimum: root.yMinimum
                readonly property real yMaximum: root.yMaximum
                readonly property int xAxisScale: root.xAxisScale
                readonly property int yAxisScale: root.yAxisScale

                anchors.fill: parent
                anchors.margins: root.spacingAxis
            }
        }
    }
    RBodeplotAxis {
        id: xAxis
        anchors.left: grid.left
        anchors.right: grid.right
        anchors.bottom: parent.bottom
        visible: root.showAxis
        minimum: root.xMinimum
        maximum: root.xMaximum
        delta: root.xIncrement
        scale: root.xAxisScale
        fontSizeAxis: root.fontSizeAxis
        xAxisTickValues: root.xAxisTickValues
        yAxisTickValues: root.yAxisTickValues
    }
    RBodeplotAxis {
        id: yAxis
        LayoutMirroring.enabled: false
        anchors.left: parent.left
        anchors.top: grid.top
        anchors.bottom: grid.bottom
        horizontal: false
        visible: root.showAxis
        minimum: root.yMinimum
        maximum: root.yMaximum
        delta: root.yIncrement
        scale: root.yAxisScale
        fontSizeAxis: root.fontSizeAxis
        xAxisTickValues: root.xAxisTickValues
        yAxisTickValues: root.yAxisTickValues
    }
    Loader {
        anchors.fill: parent
        active: root.activeFocus || zoomArea.activeFocus
        sourceComponent: RFocusRectangle {}
    }
}
