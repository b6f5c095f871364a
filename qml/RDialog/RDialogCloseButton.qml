import QtQuick
import TambleClient.Control 1.0

/*! Button in the header of a dialog that rejects it. */
RButtonIcon {
    id: root

    RStyleSet.name: "ghost"

    anchors.right: root.parent.right
    anchors.rightMargin: 4 * RThemeValues.unit
    anchors.verticalCenter: root.parent.verticalCenter
    width: 32 * RThemeValues.unit
    // Esc does the same, and what is typed in a field is not entered by the way.
    focusPolicy: Qt.NoFocus
    label: qsTr("Close")
    iconItem.key: "close"
}
