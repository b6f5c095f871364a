import QtQuick
import QtQuick.Templates as T
import Gallery
import TambleClient.Control 1.0

/*! Recalls presets of the first mixer; while the show runs, only after asking. */
RMessageBox {
    id: root

    property int row: -1

    function recall(row: int) {
        if (!Festival.showRuns) {
            GalleryInstallation.presets.recall(row)
            return
        }
        root.row = row
        root.text = qsTr("The show runs. The preset \"%1\" changes all channels of the FOH mixer at once.").arg(GalleryInstallation.presets.nameAt(row))
        root.open()
    }

    title: qsTr("Recall the preset?")
    icon: RMessageBox.Warning
    standardButtons: T.Dialog.Yes | T.Dialog.Cancel
    onAccepted: GalleryInstallation.presets.recall(root.row)
}
