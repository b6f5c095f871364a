import QtQuick
import TambleClient.Control 1.0

/*! Numbers along one axis of a frequency plot. */
RBodeplotAxisTemplate {
    id: root

    RStyleSet.typeName: "RBodeplotAxis"

    property color ssColor: root.RStyleSet.props.foreground

    implicitWidth: 20 * RThemeValues.unit
    implicitHeight: 20 * RThemeValues.unit
    fontSizeAxis: RThemeValues.fontSizeXS
    Accessible.ignored: true

    style: QtObject {
        id: looks
        readonly property string fontFamily: RThemeValues.fontFamily
        readonly property real fontSize: root.fontSizeAxis
    }

    // qmllint disable unqualified
    Repeater {
        model: root.labels

        RText {
            required property var modelData
            required property int index
            readonly property real position: modelData.position

            x: Math.round(root.horizontal ? position - width / 2 : root.width - width)
            y: Math.round(root.horizontal ? (root.height - height) / 2 : position - height / 2)
            visible: root.readable[index] === true
            text: modelData.text
            color: root.ssColor
            font.family: looks.fontFamily
            font.pixelSize: RThemeValues.fontPixels(looks.fontSize)
        }
    }
    // qmllint enable unqualified
}
