import QtQuick
import QtQuick.Templates as T

/*! Scrolls its content up and down.

    A component of its own, since Qt knows the bar only where it is there before the content. */
T.ScrollView {
    id: root

    contentWidth: root.availableWidth

    T.ScrollBar.vertical: RScrollBar {
        parent: root
        x: root.mirrored ? 0 : root.width - width
        height: root.height
    }
}
