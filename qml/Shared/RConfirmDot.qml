import QtQuick
import TambleClient.Control 1.0

/*! Dot beside what the device has not confirmed yet. */
Rectangle {
    id: root

    /*! Whether the page waits for the device. */
    required property bool pulsing

    width: 6 * RThemeValues.unit
    height: root.width
    radius: root.width / 2
    Accessible.ignored: true

    SequentialAnimation on opacity {
        running: root.pulsing
        loops: Animation.Infinite
        alwaysRunToEnd: true
        NumberAnimation { to: 0.3; duration: 500 }
        NumberAnimation { to: 1; duration: 500 }
    }
}
