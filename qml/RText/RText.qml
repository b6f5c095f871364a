import QtQuick
import TambleClient.Control 1.0

/*! Text of the interface. Device names and the like are shown as they are, never interpreted. */
Text {
    id: root

    color: root.RStyleSet.props.color("foreground")
    font.family: theme.fontFamily
    font.pixelSize: theme.fontSizeM
    renderType: theme.nativeRendering ? Text.NativeRendering : Text.QtRendering
    textFormat: Text.PlainText
}
