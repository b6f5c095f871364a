import QtQuick
import TambleClient.Control 1.0

/*! The look of all handles on plots: a disc with a few letters, a bubble that tells what is being changed, and the
    focus. What a gesture means is up to the kinds of handles. */
RHandleBase {
    id: root

    RStyleSet.typeName: "RBodeplotFilterPoint"

    /*! Name of what the handle edits. */
    property string label
    /*! Whether the handle is in the selected colour; that of the focus and of a drag by default. */
    property bool selected: root.activeFocus || root.dragging
    /*! Whether the handle is in the colour of an error, with an exclamation mark. */
    property bool errorFlag: false
    /*! False while what the handle edits is bypassed. */
    property bool visiblePoint: true
    /*! What the bubble beside the handle shows, `bubbleText`, and what assistive tools say, `valueText`. */
    property string bubbleText
    property string valueText
    /*! Whether the bubble is shown. */
    property bool bubbleVisible: root.dragging || root.activeFocus && root.keyFocus || root.hovered
    /*! Up to three letters on the disc. */
    property string discText
    /*! Diameter of the disc in pixels. */
    property real discSize: 24 * RThemeValues.unit
    /*! Place of the disc within the handle in pixels, `discX` and `discY`. */
    property real discX: 0
    property real discY: 0

    property color ssBackground: root.RStyleSet.props.background
    property color ssBackgroundSelected: root.RStyleSet.props.backgroundSelected
    property color ssBackgroundError: root.RStyleSet.props.backgroundError
    property color ssColor: labelStyle.RStyleSet.props.foreground

    /*! The colour of the disc. */
    readonly property color stateColor: root.errorFlag ? root.ssBackgroundError : root.selected ? root.ssBackgroundSelected : root.ssBackground

    RStyleSet.stateHelper.hovered: root.hovered
    RStyleSet.stateHelper.pressed: root.dragging
    RStyleSet.stateHelper.disabled: !root.enabled
    RStyleSet.stateHelper.focus: root.activeFocus
    RStyleSet.stateHelper.selected: root.selected
    RStyleSet.stateHelper.readOnly: root.readOnly

    unitLength: RThemeValues.unit
    x: root.place.x - root.width / 2
    y: root.place.y - root.height / 2
    z: root.dragging ? 2 : root.selected ? 1 : 0
    width: root.implicitWidth
    height: root.implicitHeight
    implicitWidth: root.discSize
    implicitHeight: root.discSize
    Accessible.role: Accessible.Slider
    Accessible.focusable: true
    Accessible.readOnly: root.readOnly
    Accessible.description: root.valueText + (root.errorFlag ? qsTr(", error") : "") + (root.readOnly ? qsTr(", read only") : "")

    RStyleProbe {
        id: labelStyle
        type: "RButton"
    }
    Rectangle {
        id: disc
        x: root.discX
        y: root.discY
        width: root.discSize
        height: root.discSize
        radius: width / 2
        opacity: root.visiblePoint ? 1 : 0.4
        color: root.visiblePoint ? root.stateColor : "transparent"
        border.width: root.visiblePoint ? 0 : 2 * RThemeValues.unit
        border.color: root.stateColor
    }
    Loader {
        anchors.centerIn: disc
        active: root.discText !== "" || root.errorFlag
        // qmllint disable unqualified
        sourceComponent: RText {
            text: root.discText.slice(0, 3) + (root.errorFlag ? "!" : "")
            color: root.visiblePoint ? root.ssColor : root.stateColor
            font.pixelSize: RThemeValues.fontSizeXS
            font.bold: true
        }
    }
    Loader {
        anchors.fill: disc
        anchors.margins: -2 * RThemeValues.unit
        active: root.activeFocus
        sourceComponent: RFocusRectangle {
            radius: width / 2
        }
    }
    Loader {
        active: root.bubbleText !== "" && root.bubbleVisible
        sourceComponent: RHandleBubble {
            handle: root
            text: root.bubbleText
            color: root.errorFlag ? root.ssBackgroundError : root.ssBackgroundSelected
            ssColor: root.ssColor
        }
    }
    // qmllint enable unqualified
}
