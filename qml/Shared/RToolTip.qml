import QtQuick
import TambleClient.Control 1.0

/*! Explains its parent while `visible` is set. */
RToolTipTemplate {
    id: root

    readonly property real widest: Math.min(320 * RThemeValues.unit, root.roomInWindow)
    readonly property real roomInWindow: root.parent && root.parent.Window.width > 0 ? root.parent.Window.width - 2 * root.margins : Infinity

    x: root.parent ? (root.parent.width - root.width) / 2 : 0
    y: root.parent ? root.parent.height + 4 * RThemeValues.unit : 0
    implicitWidth: Math.min(root.contentItem.implicitWidth, root.widest)
    implicitHeight: root.contentItem.implicitHeight
    margins: 8 * RThemeValues.unit
    delay: 700
    closePolicy: RPopupTemplate.CloseOnEscape | RPopupTemplate.CloseOnPressOutside

    contentItem: RPopupFrame { // qmllint disable deferred-property-id
        id: frame
        implicitWidth: words.implicitWidth
        implicitHeight: words.implicitHeight

        RText {
            id: words
            width: Math.min(words.implicitWidth, root.widest)
            padding: 6 * RThemeValues.unit
            wrapMode: Text.Wrap
            // More would take seconds to wrap, and nobody reads it.
            text: root.text.length > 1000 ? root.text.slice(0, 1000) + "…" : root.text
            color: frame.ssForegroundItem
            font.pixelSize: RThemeValues.fontSizeS
        }
    }
}
