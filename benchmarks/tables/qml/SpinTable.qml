import QtQuick
import TambleClient.Control 1.0

TablePage {
    delegate: RCellSpinBox {
        id: cell

        required property real number

        required row
        required column
        value: cell.number
        from: -1000
        to: 1000
        stepSize: 0.1
    }
}
