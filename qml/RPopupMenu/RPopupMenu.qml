import QtQuick
import TambleClient.Control 1.0

/*! Context menu: a menu with a border, which `popupAt` opens beside the point that was pressed. */
RMenu {
    y: 0
    borderVisible: true
    closePolicy: RPopupTemplate.CloseOnEscape | RPopupTemplate.CloseOnPressOutside
}
