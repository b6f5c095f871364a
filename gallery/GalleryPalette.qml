pragma Singleton

import QtQuick

/*! Colours of the gallery's own frame, until the built-in style sheets supply them. */
QtObject {
    id: root

    property bool dark: true

    readonly property color background: root.dark ? "#202225" : "#f4f5f6"
    readonly property color panel: root.dark ? "#2a2d31" : "#ffffff"
    readonly property color line: root.dark ? "#3c4046" : "#d3d7db"
    readonly property color text: root.dark ? "#eceef0" : "#1d2125"
    readonly property color subtleText: root.dark ? "#a4abb3" : "#5a636c"
    readonly property color accent: root.dark ? "#4fb3ea" : "#006699"
    /*! Ground that white, untinted artwork stands on. */
    readonly property color artworkGround: root.dark ? "#33373c" : "#4a5159"
}
