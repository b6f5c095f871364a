import QtQuick
import TambleClient.Control 1.0

/*! What marks a field besides its colours: a dot while a text is not entered or not confirmed, a triangle while devices
    differ, a sign while the text is not acceptable. */
Item {
    id: root

    /*! The control that has the marks, and the colours for them. */
    required property var field
    required property RFieldEdit edit

    readonly property Item item: root.field
    readonly property bool mirrored: root.item.LayoutMirroring.enabled
    readonly property real inset: root.field.marksInset ?? 0

    x: root.mirrored ? root.inset : 0
    width: root.field.width - root.inset
    height: Math.min(root.field.height, 32 * RThemeValues.unit)
    visible: root.edit.marked

    RConfirmDot {
        id: dot
        x: root.mirrored ? 4 * RThemeValues.unit : root.width - 10 * RThemeValues.unit
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
        x: root.mirrored ? 12 * RThemeValues.unit : root.width - 20 * RThemeValues.unit
        y: (root.height - height) / 2
        key: "warning"
        sizeClass: "XXS"
        ssIconForeground: root.field.ssForegroundInvalid
        visible: !root.edit.acceptable
    }
    RMixedFlag {
        x: root.mirrored ? root.width - width : 0
        mirrored: root.mirrored
        color: root.field.ssInconsistentFlag
        visible: !root.edit.consistent
    }
}
