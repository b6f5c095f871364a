import QtQuick
import TambleClient.Control 1.0

/*! Eight dots that turn once a second, the later the fainter. */
Item {
    id: root

    RStyleSet.typeName: "RFocusRectangle"

    property bool running: true

    property color ssBorder: root.RStyleSet.props.border

    readonly property int count: 8
    readonly property real dot: 6 * RThemeValues.unit

    implicitWidth: 32 * RThemeValues.unit
    implicitHeight: 32 * RThemeValues.unit
    Accessible.ignored: true

    RotationAnimator on rotation {
        from: 0
        to: 360
        duration: 1000
        loops: Animation.Infinite
        running: root.running
    }
    // qmllint disable unqualified
    Repeater {
        model: root.count

        Rectangle {
            required property int index
            readonly property real angle: 2 * Math.PI * index / root.count

            x: (root.width - width) / 2 * (1 + Math.sin(angle))
            y: (root.height - height) / 2 * (1 - Math.cos(angle))
            width: root.dot
            height: root.dot
            radius: width / 2
            color: root.ssBorder
            opacity: (index + 1) / root.count
        }
    }
    // qmllint enable unqualified
}
