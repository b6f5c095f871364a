import QtQuick
import TambleClient.Control 1.0

/*! Scrolls its content up and down.

    A component of its own, since Qt knows the bar only where it is there before the content. */
RScrollViewTemplate {
    id: root

    // The focus is meant for what is scrolled. Said here, where Qt finds the number as it compiles the file: in a file
    // that builds on this one, it would list all names of the namespace while the page is made.
    focusPolicy: Qt.NoFocus
    contentWidth: root.availableWidth

    RScrollBarTemplate.vertical: RScrollBar {
        parent: root
        x: root.mirrored ? 0 : root.width - width
        height: root.height
    }
}
