import QtQuick
import TambleClient.Control 1.0
import "../Shared" as Shared

/*! Handle of a limiter's threshold: a disc centred on its point. The curve that owns it moves it. */
Item {
    id: root

    RStyleSet.typeName: "RBodeplotFilterPoint"

    property int index: 0
    property string label
    property bool selected: false
    property bool errorFlag: false
    property real quality: 0
    /*! False while the limiter is bypassed. */
    property bool visiblePoint: true
    property real frequency: 0
    /*! The threshold, in dB. */
    property real gain: 0
    /*! Shows the threshold in a bubble beside the handle, while it is being moved. */
    property bool showQuality: false

    property color ssBackground: root.RStyleSet.props.background
    property color ssBackgroundSelected: root.RStyleSet.props.backgroundSelected
    property color ssBackgroundError: root.RStyleSet.props.backgroundError
    property color ssColor: labelStyle.RStyleSet.props.foreground

    readonly property color stateColor: root.errorFlag ? root.ssBackgroundError : root.selected ? root.ssBackgroundSelected : root.ssBackground
    readonly property string valueText: isNaN(root.gain) ? "–" : qsTr("%1 dB").arg(root.gain.toFixed(1))

    RStyleSet.stateHelper.focus: root.activeFocus
    RStyleSet.stateHelper.selected: root.selected

    implicitWidth: 24 * RThemeValues.unit
    implicitHeight: 24 * RThemeValues.unit
    Accessible.role: Accessible.Slider
    Accessible.name: root.label !== "" ? qsTr("Threshold %1").arg(root.label) : qsTr("Threshold")
    Accessible.description: root.errorFlag ? qsTr("%1, error").arg(root.valueText) : root.valueText
    Accessible.focusable: true

    Shared.RStyleProbe {
        id: labelStyle
        type: "RButton"
    }
    Rectangle {
        anchors.fill: parent
        radius: width / 2
        opacity: root.visiblePoint ? 1 : 0.4
        color: root.visiblePoint ? root.stateColor : "transparent"
        border.width: root.visiblePoint ? 0 : 2 * RThemeValues.unit
        border.color: root.stateColor
    }
    RText {
        anchors.centerIn: parent
        text: root.label.slice(0, 3) + (root.errorFlag ? "!" : "")
        color: root.ssColor
        font.pixelSize: RThemeValues.fontSizeXS
        font.bold: true
    }
    Loader {
        anchors.fill: parent
        anchors.margins: -2 * RThemeValues.unit
        active: root.activeFocus
        sourceComponent: RFocusRectangle {
            radius: width / 2
        }
    }
    Rectangle {
        anchors.left: parent.right
        anchors.leftMargin: 4 * RThemeValues.unit
        anchors.verticalCenter: parent.verticalCenter
        width: bubbleText.implicitWidth + 8 * RThemeValues.unit
        height: bubbleText.implicitHeight + 4 * RThemeValues.unit
        radius: 2 * RThemeValues.unit
        visible: root.showQuality
        color: root.stateColor

        RText {
            id: bubbleText
            anchors.centerIn: parent
            text: root.valueText
            color: root.ssColor
            font.pixelSize: RThemeValues.fontSizeXS
        }
    }
}
