import QtQuick
import TambleClient.Control 1.0

/*! Title of a dialog, by which it is dragged. */
RDialogHeaderBase {
    RStyleSet.name: "header"

    // A bare Text, which costs less than the component.
    words: Text {
        font.family: RThemeValues.fontFamily
        font.pixelSize: RThemeValues.fontSizeL
        renderType: RThemeValues.renderType
        textFormat: Text.PlainText
        elide: Text.ElideRight
        horizontalAlignment: Text.AlignLeft
        verticalAlignment: Text.AlignVCenter
    }
}
