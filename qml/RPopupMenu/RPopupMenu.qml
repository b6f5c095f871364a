import QtQuick
import QtQuick.Templates as T
import TambleClient.Control 1.0

/*! Context menu: a menu with a border, which `popupAt` opens beside the point that was pressed. */
RMenu {
    y: 0
    borderVisible: true
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside
}
