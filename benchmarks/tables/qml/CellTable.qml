import QtQuick
import TambleClient.Control 1.0

TablePage {
    delegate: RCellText {
        id: cell

        required property string display

        required row
        required column
        text: cell.display
    }
}
