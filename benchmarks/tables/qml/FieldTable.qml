import QtQuick
import QtQuick.Controls.Basic as Basic
import TambleClient.Control 1.0

TablePage {
    delegate: Basic.TextField {
        id: cell

        required property real number

        implicitWidth: 144
        implicitHeight: 32
        text: cell.number
        font.family: RThemeValues.fontFamily
        font.pixelSize: RThemeValues.fontSizeM
        renderType: RThemeValues.renderType
    }
}
