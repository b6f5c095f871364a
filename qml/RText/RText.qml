import QtQuick
import TambleClient.Control 1.0

/*! Text of the interface. Device names and the like are shown as they are, never interpreted. */
Text {
    id: root

    color: root.RStyleSet.props.foreground
    font.family: RThemeValues.fontFamily
    font.pixelSize: RThemeValues.fontSizeM
    renderType: RThemeValues.renderType
    textFormat: Text.PlainText
}
