import QtQuick
import TambleClient.Control 1.0

/*! Moves the bar of a progress that nobody knows the length of. */
NumberAnimation {
    id: root

    property: "travel"
    from: 0
    to: 1
    duration: 1500
    loops: Animation.Infinite
    running: (root.target as RProgressBarBase)?.travelling ?? false
}
