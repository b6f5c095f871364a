import QtQuick
import QtQuick.Templates as T
import Gallery
import TambleClient.Control 1.0

/*! Recalls presets of the first mixer; while the show runs, only after asking. */
RMessageBox {
    id: root

    property int row: -1

    function recall(row: int) {
        root.row = row
        if (Festival.showRuns)
            root.open()
        else
            GalleryInstallation.presets.recall(row)
    }

    title: qsTr("Recall the preset?")
    text: qsTr("The show runs. The preset \"%1\" changes all channels of the FOH mixer at once.").arg(GalleryInstallation.presets.nameAt(root.row))
    icon: RMessageBox.Warning
    standardButtons: T.Dialog.Yes | T.Dialog.Cancel
    onAccepted: GalleryInstallation.presets.recall(root.row)
}
