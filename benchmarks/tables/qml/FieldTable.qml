import QtQuick
import QtQuick.Controls.Basic as Basic
import TambleClient.Control 1.0

TablePage {
    delegate: Basic.TextField {
        id: cell

        required property real number

        text: cell.number
        font.family: RThemeValues.fontFamily
        font.pixelSize: RThemeValues.fontSizeM
        renderType: RThemeValues.renderType
    }
}
