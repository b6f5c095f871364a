import QtQuick
import QtQuick.Templates as T
import TambleClient.Control 1.0

/*! Buttons of a dialog: the page's own at the left, the standard ones at the right. Without room for both the page's
    own stand above. */
Item {
    id: root

    /*! The dialog that they belong to. */
    required property RDialogBase dialog
    /*! Who holds the standard buttons (`standardBox`) and the page's own (`furtherRow`). */
    readonly property alias standardBox: standard
    readonly property alias furtherRow: further

    readonly property real pad: 16 * RThemeValues.unit
    readonly property real gap: further.implicitWidth > 0 && standard.contentWidth > 0 ? root.pad : 0
    readonly property bool stacked: root.gap > 0 && root.implicitWidth > root.dialog.maximumWidth
    /*! Most that a button can be wide beside the others. */
    readonly property real widestButton: (root.dialog.maximumWidth - 2 * root.pad) / Math.max(1, standard.count) - standard.spacing

    implicitWidth: 2 * root.pad + further.implicitWidth + root.gap + standard.contentWidth
    height: standard.count === 0 && further.implicitWidth === 0 ? 0 : (root.stacked ? 72 : 32) * RThemeValues.unit + 2 * root.pad

    RButtonRow {
        id: further
        anchors.left: parent.left
        anchors.leftMargin: root.pad
        y: root.pad
        spacing: standard.spacing
    }
    T.DialogButtonBox {
        id: standard
        anchors.right: parent.right
        anchors.rightMargin: root.pad
        y: root.pad + (root.stacked ? 40 * RThemeValues.unit : 0)
        width: standard.contentWidth
        height: 32 * RThemeValues.unit
        padding: 0
        spacing: 8 * RThemeValues.unit
        alignment: Qt.AlignRight
        contentItem: RButtonRow { // qmllint disable deferred-property-id
            spacing: standard.spacing
        }
        // qmllint disable unqualified
        delegate: RDialogButton {
            widest: root.widestButton
        }
        // qmllint enable unqualified
    }
}
