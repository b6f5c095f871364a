import QtQuick
import TambleClient.Control 1.0

/*! Tells that a view is loading. */
RLoadingAnimation {
    id: root

    required property RViewContainerBase container

    anchors.centerIn: parent
    z: 3
    running: root.container.busy
}
