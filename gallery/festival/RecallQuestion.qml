import QtQuick
import QtQuick.Templates as T
import Gallery
import TambleClient.Control 1.0

/*! Recalls presets of the first mixer while that is online; while the show runs, only after asking. */
RMessageBox {
    id: root

    property int row: -1
    readonly property bool possible: root.mixer.online
    readonly property DeviceSelection mixer: DeviceSelection {
        devices: [GalleryInstallation.firstMixer]
        observed: false
    }

    function recall(row: int) {
        root.row = row
        if (!Festival.showRuns || !root.possible) {
            root.recallNow()
            return
        }
        root.text = qsTr("The show runs. The preset \"%1\" changes all channels of the FOH mixer at once.").arg(GalleryInstallation.presets.nameAt(row))
        root.open()
    }

    function recallNow() {
        if (root.possible)
            GalleryInstallation.presets.recall(root.row)
    }

    title: qsTr("Recall the preset?")
    icon: RMessageBox.Warning
    standardButtons: T.Dialog.Yes | T.Dialog.Cancel
    onAccepted: root.recallNow()
}
