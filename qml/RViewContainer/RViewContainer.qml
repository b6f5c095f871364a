import QtQuick
import TambleClient.Control 1.0

/*! Shows one of several views, each loaded when it is first wanted; see RViewContainerBase. */
RViewContainerBase {
    id: root

    implicitWidth: root.currentItem ? root.currentItem.implicitWidth : 0
    implicitHeight: root.currentItem ? root.currentItem.implicitHeight : 0
    Accessible.role: Accessible.Pane
    Accessible.name: root.currentTitle
}
