import QtQuick
import TambleClient.Control 1.0
import "../Shared" as Shared

/*! Handle of a filter: a disc with a label above the dot that marks the filter's frequency and gain, at three quarters
    of the height. The curve that owns it moves it. */
Item {
    id: root

    RStyleSet.typeName: "RBodeplotFilterPoint"

    property int index: 0
    property string label
    property bool selected: false
    property bool errorFlag: false
    property real quality: 0
    /*! False while the filter is bypassed. */
    property bool visiblePoint: true
    property real frequency: 0
    property real gain: 0
    /*! Whether the filter's response depends on these; they are then part of the description. */
    property bool hasGain: true
    property bool hasQuality: true
    /*! Shows the Q in a bubble beside the handle, while it is being changed. */
    property bool showQuality: false

    property color ssBackground: root.RStyleSet.props.background
    property color ssBackgroundSelected: root.RStyleSet.props.backgroundSelected
    property color ssBackgroundError: root.RStyleSet.props.backgroundError
    property color ssColor: labelStyle.RStyleSet.props.foreground

    readonly property color stateColor: root.errorFlag ? root.ssBackgroundError : root.selected ? root.ssBackgroundSelected : root.ssBackground
    readonly property string qualityText: qsTr("Q %1").arg(root.quality.toFixed(1))
    readonly property string gainText: qsTr("%1 dB").arg((root.gain >= 0 ? "+" : "") + root.gain.toFixed(1))
    readonly property string valueText: qsTr("%1 Hz").arg(Math.round(root.frequency))
                                        + (root.hasGain ? ", " + root.gainText : "")
                                        + (root.hasQuality ? ", " + root.qualityText : "")
                                        + (root.errorFlag ? ", " + qsTr("error") : "")

    RStyleSet.stateHelper.focus: root.activeFocus
    RStyleSet.stateHelper.selected: root.selected

    implicitWidth: 24 * RThemeValues.unit
    implicitHeight: 32 * RThemeValues.unit
    Accessible.role: Accessible.Slider
    Accessible.name: qsTr("Filter %1").arg(root.label !== "" ? root.label : root.index + 1)
    Accessible.description: root.valueText
    Accessible.focusable: true

    Shared.RStyleProbe {
        id: labelStyle
        type: "RButton"
    }
    Rectangle {
        id: disc
        width: parent.width
        height: width
        radius: width / 2
        opacity: root.visiblePoint ? 1 : 0.4
        color: root.visiblePoint ? root.stateColor : "transparent"
        border.width: root.visiblePoint ? 0 : 2 * RThemeValues.unit
        border.color: root.stateColor
    }
    RText {
        anchors.centerIn: disc
        width: Math.min(implicitWidth, disc.width)
        text: root.label.slice(0, 3) + (root.errorFlag ? "!" : "")
        color: root.visiblePoint ? root.ssColor : root.stateColor
        font.pixelSize: RThemeValues.fontSizeXS
        font.bold: true
    }
    Rectangle {
        x: (parent.width - width) / 2
        y: parent.height * 0.75 - height / 2
        width: 8 * RThemeValues.unit
        height: width
        radius: width / 2
        opacity: disc.opacity
        color: root.stateColor
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
        anchors.left: disc.right
        anchors.leftMargin: 4 * RThemeValues.unit
        anchors.verticalCenter: disc.verticalCenter
        active: root.showQuality
        // qmllint disable unqualified
        sourceComponent: Rectangle {
            width: bubbleText.implicitWidth + 8 * RThemeValues.unit
            height: bubbleText.implicitHeight + 4 * RThemeValues.unit
            radius: 2 * RThemeValues.unit
            color: root.stateColor

            RText {
                id: bubbleText
                anchors.centerIn: parent
                text: root.qualityText
                color: root.ssColor
                font.pixelSize: RThemeValues.fontSizeXS
            }
        }
        // qmllint enable unqualified
    }
}
