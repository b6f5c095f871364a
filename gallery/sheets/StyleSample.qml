import QtQuick
import TambleClient.Control 1.0

/*! A button that announces the pointer and the keyboard focus. */
RButton {
    id: root

    signal entered()

    onHoveredChanged: {
        if (root.hovered)
            root.entered()
    }
    onActiveFocusChanged: {
        if (root.activeFocus)
            root.entered()
    }
}
