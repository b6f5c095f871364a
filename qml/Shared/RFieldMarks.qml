import QtQuick
import TambleClient.Control 1.0

/*! What marks a field besides its colours: a dot while a text is not entered or not confirmed, a triangle while devices
    differ, a sign while the text is not acceptable. */
Item {
    id: root

    /*! The control that has the marks, and the colours for them. */
    required property var field
    required property RFieldEdit edit

    width: root.field.width - (root.field.marksInset ?? 0)
    height: Math.min(root.field.height, 32 * RThemeValues.unit)
    visible: root.edit.marked

    Rectangle {
        id: dot
        x: root.width - 10 * RThemeValues.unit
        y: (root.height - dot.height) / 2
        width: 6 * RThemeValues.unit
        height: dot.width
        radius: dot.width / 2
        color: root.field.ssConfirmIndicator
        visible: root.edit.edited || !root.edit.confirmed

        SequentialAnimation {
            id: blink
            NumberAnimation { target: dot; property: "scale"; to: 2; duration: 150 }
            NumberAnimation { target: dot; property: "scale"; to: 1; duration: 150 }
        }
        SequentialAnimation on opacity {
            running: !root.edit.confirmed
            loops: Animation.Infinite
            alwaysRunToEnd: true
            NumberAnimation { to: 0.3; duration: 500 }
            NumberAnimation { to: 1; duration: 500 }
        }
    }

    Connections {
        target: root.edit
        function onValueWaits() { blink.restart() }
    }
    RIcon {
        x: root.width - 20 * RThemeValues.unit
        y: (root.height - height) / 2
        key: "warning"
        sizeClass: "XXS"
        ssIconForeground: root.field.ssForegroundInvalid
        visible: !root.edit.acceptable
    }

    // A triangle: the quarter of a square that stands on its tip.
    Item {
        width: 8 * RThemeValues.unit
        height: width
        clip: true
        visible: !root.edit.consistent

        Rectangle {
            x: -width / 2
            y: -width / 2
            width: parent.width * Math.SQRT2
            height: width
            rotation: 45
            color: root.field.ssInconsistentFlag
            antialiasing: true
        }
    }
}
