import QtQuick
import TambleClient.Control 1.0

/*! Text above a progress bar, and the icon at its end when what progressed has failed. */
Item {
    id: root

    readonly property RProgressBarBase bar: root.parent as RProgressBarBase

    anchors.fill: parent

    RText {
        width: root.bar.width - (icon.visible ? icon.width + 4 * RThemeValues.unit : 0)
        x: root.bar.mirrored ? root.bar.width - width : 0
        height: 11 * RThemeValues.unit
        text: root.bar.shownText
        font.pixelSize: RThemeValues.fontSizeXS
        elide: Text.ElideRight
        LayoutMirroring.enabled: root.bar.mirrored
        verticalAlignment: Text.AlignVCenter
    }
    RIcon {
        id: icon
        x: root.bar.mirrored ? 0 : root.bar.width - width
        y: (root.bar.height - height) / 2
        visible: root.bar.failed
        key: "error"
        sizeClass: "XS"
    }
}
