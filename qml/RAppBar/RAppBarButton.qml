import QtQuick
import TambleClient.Control 1.0

/*! Button of the bar for a command, such as a menu or "undo": an icon, whose name `label` is also its tool tip, and a
    small text below it where `text` is set. */
RBarButtonBase {
    id: root

    RStyleSet.typeName: "RAppBarButton"

    /*! The icon, whose `key` is `iconKey`. */
    property alias iconItem: icon

    ssBackground: root.sheetBackground
    ssColor: root.sheetColor

    RStyleSet.stateHelper.pressed: root.down

    implicitWidth: 48 * RThemeValues.unit
    implicitHeight: 48 * RThemeValues.unit
    hoverEnabled: RThemeValues.hoverEnabled
    focusPolicy: Qt.StrongFocus
    shortened: true

    background: RControlBackground { // qmllint disable deferred-property-id
        color: root.ssBackground
        // Twice as wide with the focus, whose frame covers half of it.
        border.width: !root.ssBorderVisible ? 0 : root.RStyleSet.stateHelper.focus ? 2 * RThemeValues.unit : RThemeValues.unit
        border.color: root.ssBorderColor
        focusVisible: root.RStyleSet.stateHelper.focus
    }
    contentItem: Item { // qmllint disable deferred-property-id
        RIcon {
            id: icon
            x: (parent.width - width) / 2
            y: words.visible ? 5 * RThemeValues.unit : (parent.height - height) / 2
            key: root.iconKey
            // No sheet has a colour for the icon of a disabled button.
            opacity: root.enabled ? 1 : 0.5
        }
        RText {
            id: words
            y: parent.height - height - 4 * RThemeValues.unit
            width: parent.width
            leftPadding: 2 * RThemeValues.unit
            rightPadding: 2 * RThemeValues.unit
            visible: root.text.length > 0
            text: root.plainText
            color: root.ssColor
            font.pixelSize: RThemeValues.fontSizeXS
            elide: Text.ElideRight
            horizontalAlignment: Text.AlignHCenter
        }
    }
}
