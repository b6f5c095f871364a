import QtQuick
import TambleClient.Control 1.0

/*! Handle of a fader, laid out for an upright one. */
Rectangle {
    id: root

    property color lineColor
    property string text: ""
    property bool upright: true
    /*! Several devices differ: a dash stands in place of the line. */
    property bool mixed: false
    /*! The device has not acknowledged the value: the line has a gap. */
    property bool pending: false

    width: 28 * RThemeValues.unit
    height: 48 * RThemeValues.unit

    Rectangle {
        id: line
        y: (root.height - line.height) / 2
        width: root.pending ? 10 * RThemeValues.unit : root.width
        height: 2 * RThemeValues.unit
        visible: !root.mixed
        color: root.lineColor
    }
    // qmllint disable unqualified
    Loader {
        active: root.pending && !root.mixed
        x: root.width - line.width
        y: line.y
        sourceComponent: Rectangle {
            width: line.width
            height: line.height
            color: root.lineColor
        }
    }
    Loader {
        active: root.mixed
        anchors.centerIn: parent
        rotation: root.upright ? 0 : -90
        sourceComponent: RIcon {
            key: "dash"
            sizeClass: "S"
            ssIconForeground: root.lineColor
        }
    }
    Loader {
        id: caption
        active: root.text.length > 0
        x: (root.width - caption.width) / 2
        y: root.height / 4 - caption.height / 2
        rotation: root.upright ? 0 : -90
        sourceComponent: RText {
            width: root.width - 2 * RThemeValues.unit
            text: root.text.substring(0, 4)
            color: root.lineColor
            font.pixelSize: RThemeValues.fontSizeXS
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 5
            horizontalAlignment: Text.AlignHCenter
        }
    }
    // qmllint enable unqualified
}
