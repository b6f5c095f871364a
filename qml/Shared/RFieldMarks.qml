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

    RConfirmDot {
        id: dot
        x: root.width - 10 * RThemeValues.unit
        y: (root.height - dot.height) / 2
        color: root.field.ssConfirmIndicator
        pulsing: !root.edit.confirmed
        visible: root.edit.edited || dot.pulsing

        SequentialAnimation {
            id: blink
            NumberAnimation { target: dot; property: "scale"; to: 2; duration: 150 }
            NumberAnimation { target: dot; property: "scale"; to: 1; duration: 150 }
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
    RMixedFlag {
        color: root.field.ssInconsistentFlag
        visible: !root.edit.consistent
    }
}
