import QtQuick
import TambleClient.Control 1.0

/*! Title of a dialog, by which it is dragged. */
Rectangle {
    id: root

    RStyleSet.name: "header"

    /*! The dialog that it belongs to. */
    required property RDialogBase dialog

    /*! Whether there is anything in it. */
    readonly property bool needed: root.dialog.closable || root.dialog.title !== "" || root.dialog.iconKey !== ""
    readonly property alias textColor: words.color
    readonly property real pad: 16 * RThemeValues.unit
    /*! What stands at both sides of the title. */
    readonly property real iconSpace: root.dialog.iconKey === "" ? 0 : 32 * RThemeValues.unit
    readonly property real closeSpace: root.dialog.closable ? 40 * RThemeValues.unit : root.pad

    implicitWidth: Math.ceil(words.implicitWidth) + root.pad + root.iconSpace + root.closeSpace
    height: root.needed ? 40 * RThemeValues.unit : 0
    visible: root.needed
    color: root.dialog.ssHeaderBackground

    DragHandler {
        id: drag
        target: null
        enabled: root.dialog.movable && !root.dialog.busy
        onActiveChanged: {
            if (drag.active)
                root.dialog.beginMove()
        }
        onTranslationChanged: {
            if (drag.active)
                root.dialog.moveBy(Qt.point(drag.activeTranslation.x, drag.activeTranslation.y))
        }
    }
    RText {
        id: words
        anchors.fill: parent
        anchors.leftMargin: root.pad + root.iconSpace
        anchors.rightMargin: root.closeSpace
        text: root.dialog.title
        // Not every sheet has a colour of its own for it.
        color: root.dialog.ssHeaderColor.a > 0 ? root.dialog.ssHeaderColor : words.RStyleSet.props.foreground
        font.pixelSize: RThemeValues.fontSizeL
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
    }
    RButtonIcon {
        RStyleSet.name: "ghost"

        anchors.right: parent.right
        anchors.rightMargin: 4 * RThemeValues.unit
        anchors.verticalCenter: parent.verticalCenter
        width: 32 * RThemeValues.unit
        visible: root.dialog.closable
        enabled: !root.dialog.busy
        // Esc does the same, and what is typed in a field is not entered by the way.
        focusPolicy: Qt.NoFocus
        label: qsTr("Close")
        iconItem.key: "close"
        onClicked: root.dialog.reject()
    }
}
