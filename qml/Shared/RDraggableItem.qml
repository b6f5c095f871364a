import QtQuick
import TambleClient.Control 1.0

/*! Makes its content draggable to a DropArea: a picture of it follows the pointer, the content stays.

    Keys: Esc takes a drag back. */
RDraggableItemBase {
    id: root

    /*! What can be dragged. */
    default property alias content: root.data

    implicitWidth: root.childrenRect.width
    implicitHeight: root.childrenRect.height
}
