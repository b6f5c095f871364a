import QtQuick
import TambleClient.Control 1.0
import "../RLimiter"

/*! What the dynamics panels have in common: a square plot with its grid, numbers and curve, room for handles on it and
    for a meter beside or under it. Handles and whatever a page adds lie on the plot.

    Keys: Tab goes from handle to handle. Arrows change a handle's parameter by `dragStep`, a fifth of it with Shift, a
    ratio by 0.1; Ctrl, PageUp and PageDown by six such steps; End leads to its default, Esc takes the gesture back. */
FocusScope {
    id: root

    RStyleSet.typeName: "RBodeplotCurve"

    /*! Name for assistive tools. */
    property string title
    /*! Appended to the last number: `xUnit` below the plot, `yUnit` beside it. */
    property string xUnit: "dBu"
    property string yUnit: "dBu"
    /*! Distance of grid lines and numbers, in dB. */
    property real gridStep: 10
    /*! Whether the axes have numbers. */
    property bool showNumbering: true
    /*! Whether there are handles. */
    property bool showHandles: true
    /*! Shows the parameters and edits none. */
    property bool readOnly: false
    /*! Rounding of what is dragged and step of the arrow keys, in dB; a fifth of it with Shift, 0 for no rounding. */
    property real dragStep: 0.5
    /*! Shows a dot on the curve at `inputLevel`, the level that the processor gets at present. */
    property bool levelVisible: false
    property real inputLevel: -80
    /*! How long, in ms, an edit is shown before the page's value counts again. */
    property int settleTime: 300

    // What a panel says about itself.
    /*! Ends of the axes in dB: `xFrom` and `xTo` of the input level, `yFrom` and `yTo` of the output. A panel binds
        them to its bounds. */
    property real xFrom: -60
    property real xTo: 20
    property real yFrom: root.xFrom
    property real yTo: root.xTo
    /*! False shows the grid alone. */
    property bool active: true
    /*! Colours the curve as bypassed and says so in words. */
    property bool bypassed: false
    /*! The curve, normalised: x from 0 (left) to 1 (right), y from 0 (top) to 1 (bottom). */
    property var points: []
    /*! Shows a lock: the processor holds its gain. */
    property bool frozen: false
    /*! Pixels that what a panel places beside (`sideRoom`) or under (`lowerRoom`) the plot takes; 0 for nothing. */
    property real sideRoom: 0
    property real lowerRoom: 0
    /*! Handles and whatever a page adds, in pixels of the plot. */
    default property alias content: layer.data

    property color ssAggregatedCurve: root.RStyleSet.props.aggregatedCurve
    property color ssBypassCurve: root.RStyleSet.props.bypassCurve
    property color ssSelectedCurve: root.RStyleSet.props.selectedCurve

    /*! Whether handles are shown: an inactive plot and one without a range have none. */
    readonly property bool handlesVisible: root.showHandles && root.active && Math.abs(root.xTo - root.xFrom) > 0 && Math.abs(root.yTo - root.yFrom) > 0
    /*! Pixels between plot and numbers. */
    readonly property real gap: 4 * RThemeValues.unit
    /*! Keeps handles that stand at the edge of the plot inside of the panel. */
    readonly property real margin: 8 * RThemeValues.unit
    /*! Pixels beside and under the plot for numbers and meter: `leftRoom`, `rightRoom` and `bottomRoom`. */
    readonly property real leftRoom: root.showNumbering ? yNumbers.width + root.gap : root.margin
    readonly property real rightRoom: root.margin + (root.sideRoom > 0 ? root.sideRoom + root.margin : 0)
    readonly property real bottomRoom: (root.showNumbering ? xNumbers.height + root.gap : root.margin) + (root.lowerRoom > 0 ? root.lowerRoom + root.gap : 0)
    /*! Edge length of the plot in pixels. */
    readonly property real plotLength: Math.max(0, Math.min(root.width - root.leftRoom - root.rightRoom, root.height - root.margin - root.bottomRoom))

    /*! The user has taken back a change under way. */
    signal editCanceled()

    RStyleSet.stateHelper.disabled: !root.enabled
    RStyleSet.stateHelper.focus: root.activeFocus
    RStyleSet.stateHelper.readOnly: root.readOnly

    implicitWidth: 280 * RThemeValues.unit
    implicitHeight: 280 * RThemeValues.unit
    Accessible.role: Accessible.Chart
    Accessible.name: root.title
    Accessible.description: qsTr("%1 to %2 %3").arg(root.xFrom).arg(root.xTo).arg(root.xUnit) + (root.active ? "" : qsTr(", inactive")) + (root.bypassed ? qsTr(", bypassed") : "")
        + (root.frozen ? qsTr(", gain frozen") : "") + (root.readOnly ? qsTr(", read only") : "")

    RPlotGrid {
        id: grid
        x: Math.round(root.leftRoom + (root.width - root.leftRoom - root.rightRoom - width) / 2)
        y: Math.round(root.margin + (root.height - root.margin - root.bottomRoom - height) / 2)
        width: Math.floor(root.plotLength)
        height: width
        xFrom: root.xFrom
        xTo: root.xTo
        xStep: root.gridStep
        yFrom: root.yFrom
        yTo: root.yTo
        yStep: root.gridStep
    }
    RAxisNumbering {
        id: yNumbers
        // Without anchors, which a page could mirror: the plot stays as it is, only its place in the page may follow.
        x: grid.x - width - root.gap
        y: grid.y
        height: grid.height
        visible: root.showNumbering
        orientation: Qt.Vertical
        from: root.yFrom
        to: root.yTo
        step: root.gridStep
        unit: root.yUnit
    }
    RAxisNumbering {
        id: xNumbers
        anchors.left: grid.left
        anchors.right: grid.right
        anchors.top: grid.bottom
        anchors.topMargin: root.gap
        visible: root.showNumbering
        from: root.xFrom
        to: root.xTo
        step: root.gridStep
        unit: root.xUnit
    }
    RGraphPlotter {
        objectName: "curve"
        anchors.fill: grid
        values: root.points
        color: root.bypassed ? root.ssBypassCurve : root.ssAggregatedCurve
        lineWidth: 2 * RThemeValues.unit
    }
    Row {
        anchors.left: grid.left
        anchors.top: grid.top
        anchors.margins: root.gap
        spacing: root.gap
        visible: root.active
        LayoutMirroring.enabled: false

        RIcon {
            visible: root.frozen
            key: "lock"
            sizeClass: "XS"
        }
        RText {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.bypassed
            text: qsTr("BYPASS")
            font.pixelSize: RThemeValues.fontSizeXS
            Accessible.ignored: true
        }
    }
    // qmllint disable unqualified
    Loader {
        active: root.levelVisible && root.active && !isNaN(root.inputLevel)
        sourceComponent: Rectangle {
            objectName: "level"

            readonly property real place: RPlotRules.placeOf(root.inputLevel, root.xFrom, root.xTo)
            readonly property real placeOnCurve: RPlotRules.heightOfCurve(root.points, place)

            x: grid.x + place * grid.width - width / 2
            y: grid.y + placeOnCurve * grid.height - height / 2
            width: 8 * RThemeValues.unit
            height: 8 * RThemeValues.unit
            radius: width / 2
            visible: !isNaN(placeOnCurve)
            color: root.ssSelectedCurve
            Accessible.ignored: true
        }
    }
    // qmllint enable unqualified
    Item {
        id: layer
        anchors.fill: grid
        LayoutMirroring.enabled: false
        LayoutMirroring.childrenInherit: true
    }
}
