import QtQuick
import TambleClient.Control 1.0

TablePage {
    delegate: Text {
        id: cell

        required property string display

        text: cell.display
        color: "white"
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
        textFormat: Text.PlainText
        font.family: RThemeValues.fontFamily
        font.pixelSize: RThemeValues.fontSizeM
        renderType: RThemeValues.renderType
    }
}
