import QtQuick
import TambleClient.Control 1.0

/*! Tick of a fader's scale with its label, laid out for an upright fader. */
Item {
    id: root

    required property var modelData
    /*! Where on the rail the tick's middle is, and the edge at which ticks begin. */
    required property real place
    required property real edge
    required property bool rightSided
    required property bool upright
    property bool lineVisible: true
    property bool labelVisible: true
    property color lineColor
    property color labelColor

    x: root.edge
    y: root.place

    Rectangle {
        id: line
        x: root.rightSided ? -line.width : 0
        y: Math.round(-line.height / 2)
        width: (root.modelData.extra ? 12 : 6) * RThemeValues.unit
        height: RThemeValues.unit
        visible: root.lineVisible
        color: root.lineColor
    }
    RText {
        id: label

        readonly property real gap: 2 * RThemeValues.unit
        readonly property real depth: root.upright ? label.width : label.height

        // Turned back when the fader lies, so that it stays readable; its box then stands across.
        x: Math.round((root.rightSided ? label.gap : -label.gap - label.depth) + (label.depth - label.width) / 2)
        y: Math.round(-label.height / 2)
        width: (root.upright ? 16 : 22) * RThemeValues.unit
        rotation: root.upright ? 0 : -90
        visible: root.labelVisible && label.text.length > 0
        text: root.modelData.label
        color: root.labelColor
        elide: Text.ElideRight
        font.pixelSize: RThemeValues.fontSizeXS
        horizontalAlignment: !root.upright ? Text.AlignHCenter : root.rightSided ? Text.AlignLeft : Text.AlignRight
    }
}
