import QtQuick
import TambleClient.Control 1.0

/*! Icon in front of the title of a dialog. */
RIcon {
    id: root

    /*! What it stands in. */
    readonly property RDialogHeader header: root.parent as RDialogHeader

    anchors.left: root.header.left
    anchors.leftMargin: root.header.pad
    anchors.verticalCenter: root.header.verticalCenter
    key: root.header.dialog.iconKey
    ssIconForeground: root.header.textColor
}
