import QtQuick
import TambleClient.Control 1.0

/*! Text of a tab. */
Text {
    id: root

    required property RTabButtonBase tab

    text: root.tab.plainText
    color: root.tab.ssColor
    opacity: root.tab.enabled ? 1 : 0.5
    elide: Text.ElideRight
    font.family: RThemeValues.fontFamily
    font.pixelSize: RThemeValues.fontSizeM
    renderType: RThemeValues.renderType
    textFormat: Text.PlainText
    horizontalAlignment: Text.AlignHCenter
    verticalAlignment: Text.AlignVCenter
}
