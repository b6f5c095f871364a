import QtQuick
import TambleClient.Control 1.0

/*! The highlight of a row of a list: behind what the row shows where that takes the colours of its texts, and a frame
    around it elsewhere. */
Rectangle {
    id: root

    required property RListViewBase list
    /*! False for a row that only has the pointer above it. */
    property bool selected: false
    /*! Whether the row's texts have their colours on the highlight. */
    property bool filled: true

    // The list may go before its rows.
    readonly property color background: !root.list ? "transparent" : root.selected ? root.list.ssBackgroundItemSelected : root.list.ssBackgroundItemHover
    readonly property color sign: !root.list ? "transparent" : root.filled ? root.list.ssForegroundItemSelected : root.list.ssColor
    readonly property real gap: 4 * RThemeValues.unit

    anchors.fill: parent
    z: root.filled ? -1 : 1
    color: root.filled ? root.background : "transparent"
    border.width: root.filled ? 0 : 2 * RThemeValues.unit
    border.color: root.sign

    // Selected rows may look like the one below the pointer otherwise.
    Rectangle {
        anchors.left: parent.left
        anchors.leftMargin: root.gap
        anchors.verticalCenter: parent.verticalCenter
        width: root.gap
        height: parent.height - 2 * root.gap
        visible: root.selected
        color: root.sign
    }
}
