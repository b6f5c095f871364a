import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! The bar at the top of the window: undoing, the pages, and what concerns the whole installation. */
RAppBar {
    id: root

    /*! Pages as maps with title and icon. */
    required property var pages
    required property int currentIndex
    readonly property EditHistory history: GalleryInstallation.history
    readonly property int alarms: GalleryInstallation.allDevices.alarms

    signal chosen(int index)
    /*! The devices with an alarm are to be shown. */
    signal alarmsAsked()

    leading: [
        RAppBarButton {
            enabled: root.history.canUndo
            iconKey: "undo"
            label: root.history.canUndo ? qsTr("Undo: %1").arg(root.history.undoText) : qsTr("Undo")
            onClicked: root.history.undo()
        },
        RAppBarButton {
            enabled: root.history.canRedo
            iconKey: "redo"
            label: root.history.canRedo ? qsTr("Redo: %1").arg(root.history.redoText) : qsTr("Redo")
            onClicked: root.history.redo()
        }
    ]
    trailing: [
        RAppBarStateButton {
            RStyleSet.name: root.alarms > 0 ? "red" : "green"
            text: root.alarms > 0 ? qsTr("ALARM") : qsTr("ONLINE")
            subText: root.alarms === 1 ? qsTr("1 device") : root.alarms > 0 ? qsTr("%1 devices").arg(root.alarms) : qsTr("all devices")
            selected: true
            flashing: root.alarms > 0
            onClicked: root.alarmsAsked()
        },
        RAppBarStateButton {
            id: muteAll
            RStyleSet.name: "red"
            text: qsTr("MUTE ALL")
            subText: !mute.confirmed ? qsTr("waits") : muteAll.selected && mute.errorText.length > 0 ? qsTr("not everywhere") : ""
            selected: Boolean(mute.shown)
            consistent: mute.consistent
            flashing: muteAll.selected
            pressTwice: true
            onClicked: mute.request(!mute.shown)
        }
    ]

    DeviceSelection {
        id: everything
        devices: Array.from({ length: GalleryInstallation.allDevices.rowCount() }, (_, device) => device)
    }
    DeviceField {
        id: mute
        target: everything
        field: "mute"
    }
    // qmllint disable unqualified
    Repeater {
        model: root.pages

        RAppBarNavButton {
            required property int index
            required property var modelData

            text: modelData.title
            iconKey: modelData.icon
            selected: root.currentIndex === index
            onClicked: root.chosen(index)
        }
    }
    // qmllint enable unqualified
}
