import QtQuick

/*! Makes the veil of a window when that is busy for the first time, and keeps it: few windows ever are. By its address,
    since what is named here would be loaded with the window. */
Loader {
    id: root

    required property bool busy

    onBusyChanged: {
        if (root.busy && root.status === Loader.Null)
            root.setSource("RBusyVeil.qml", { busy: Qt.binding(() => root.busy) })
    }
}
