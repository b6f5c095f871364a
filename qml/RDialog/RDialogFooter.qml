import QtQuick
import QtQuick.Templates as T
import TambleClient.Control 1.0

/*! Buttons of a dialog. */
RDialogFooterBase {
    standardBox: T.DialogButtonBox {
        padding: 0
        alignment: Qt.AlignRight
        delegate: RDialogButton {}
    }
}
