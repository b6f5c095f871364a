import QtQuick
import TambleClient.Control 1.0

/*! Bubble with the value of a handle: above it, or below where the plot ends. */
Rectangle {
    id: root

    required property Item handle
    property alias text: label.text
    property alias ssColor: label.color

    readonly property real gap: 6 * RThemeValues.unit
    readonly property bool fitsAbove: root.handle.y >= root.height + root.gap
    readonly property real wantedX: root.handle.x + (root.handle.width - root.width) / 2

    objectName: "bubble"
    x: Math.round(Math.max(0, Math.min(root.wantedX, root.handle.parent.width - root.width)) - root.handle.x)
    y: Math.round(root.fitsAbove ? -root.height - root.gap : root.handle.height + root.gap)
    width: label.implicitWidth + 10 * RThemeValues.unit
    height: label.implicitHeight + 4 * RThemeValues.unit
    radius: 2 * RThemeValues.unit

    RText {
        id: label
        anchors.centerIn: parent
        font.pixelSize: RThemeValues.fontSizeS
    }
}
