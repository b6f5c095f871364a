import QtQuick
import QtQuick.Templates as T
import TambleClient.Control 1.0

/*! Explains its parent while `visible` is set. */
T.ToolTip {
    id: root

    x: root.parent ? (root.parent.width - root.width) / 2 : 0
    y: root.parent ? root.parent.height + 4 * RThemeValues.unit : 0
    implicitWidth: root.contentItem.implicitWidth
    implicitHeight: root.contentItem.implicitHeight
    margins: 8 * RThemeValues.unit
    delay: 700
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside

    contentItem: RPopupFrame { // qmllint disable deferred-property-id
        id: frame
        implicitWidth: words.implicitWidth
        implicitHeight: words.implicitHeight

        RText {
            id: words
            padding: 6 * RThemeValues.unit
            text: root.text
            color: frame.ssForegroundItem
            font.pixelSize: RThemeValues.fontSizeS
        }
    }
}
