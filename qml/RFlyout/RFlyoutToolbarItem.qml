import QtQuick
import TambleClient.Control 1.0

/*! Tool in a floating bar. */
RFlyoutToolbarItemBase {
    id: root

    RStyleSet.typeName: "RFlyoutToolbarItem"

    ssBackground: root.sheetBackground
    ssColor: root.sheetColor
    ssLineColor: root.ssColor

    RStyleSet.stateHelper.pressed: root.down
    RStyleSet.stateHelper.selected: root.consistent && root.selected

    implicitWidth: Math.max(40 * RThemeValues.unit, words.implicitWidth + 8 * RThemeValues.unit)
    implicitHeight: 40 * RThemeValues.unit
    hoverEnabled: RThemeValues.hoverEnabled
    focusPolicy: Qt.StrongFocus
    opacity: root.enabled ? 1 : 0.4
    onClicked: root.toggleFlyout()

    contentItem: Item { // qmllint disable deferred-property-id
        RIcon {
            anchors.horizontalCenter: parent.horizontalCenter
            y: words.visible ? 0 : (root.height - height) / 2
            key: root.iconKey
            ssIconForeground: root.ssColor
        }
        RText {
            id: words
            anchors.horizontalCenter: parent.horizontalCenter
            y: root.iconKey.length > 0 ? root.height - height - 5 * RThemeValues.unit : (root.height - height) / 2
            visible: words.text.length > 0
            text: root.plainText
            color: root.ssColor
            font.pixelSize: root.iconKey.length > 0 ? RThemeValues.fontSizeXS : RThemeValues.fontSizeM
        }
        RIcon {
            x: root.mirrored ? 0 : root.width - width
            y: root.height - height
            visible: root.flyout !== null
            key: "corner-flag"
            sizeClass: "XXS"
            rotation: root.mirrored ? -90 : 180
            ssIconForeground: root.ssColor
        }
    }
    background: RControlBackground { // qmllint disable deferred-property-id
        color: root.ssBackground
        lineVisible: root.selected && root.consistent
        // Short of the corners, so that it is a line in themes where it has the colour of the bar.
        lineInset: 6 * RThemeValues.unit
        lineEdge: root.inRow ? Qt.BottomEdge : root.mirrored ? Qt.RightEdge : Qt.LeftEdge
        focusVisible: root.RStyleSet.stateHelper.focus
    }
}
