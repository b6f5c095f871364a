import QtQuick

/*! Makes the veil of a window when that is busy for the first time, and keeps it: few windows ever are. */
Loader {
    id: root

    required property bool busy

    active: false
    // qmllint disable unqualified
    sourceComponent: RBusyVeil {
        busy: root.busy
    }
    // qmllint enable unqualified
    onBusyChanged: {
        if (root.busy)
            root.active = true
    }
}
