import QtQuick
import TambleClient.Control 1.0

/*! Buttons of a dialog. */
RDialogFooterBase {
    standardBox: RDialogButtonBoxTemplate {
        padding: 0
        alignment: Qt.AlignRight
        delegate: RDialogButton {}
    }
}
