import QtQuick
import TambleClient.Control 1.0

/*! Icon in front of the title of a dialog. */
RIcon {
    id: root

    /*! What it stands in. */
    readonly property RDialogHeaderBase header: root.parent as RDialogHeaderBase

    anchors.left: root.header.left
    anchors.leftMargin: 16 * RThemeValues.unit
    anchors.verticalCenter: root.header.verticalCenter
    key: root.header.dialog.iconKey
    ssIconForeground: root.header.dialog.ssHeaderColor
}
