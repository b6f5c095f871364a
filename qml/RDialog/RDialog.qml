import QtQuick
import TambleClient.Control 1.0

/*! Modal question or form: a header, what the page puts into it, and `standardButtons`. It is as large as its content
    asks for, from 400 units of width up to nine tenths of the window, and scrolls what does not fit. */
RDialogBase {
    id: root

    implicitWidth: root.implicitContentWidth
    implicitHeight: root.implicitContentHeight
    padding: 0
    margins: 8 * RThemeValues.unit
    modal: true
    focus: true
    closePolicy: root.closable && !root.busy ? RPopupTemplate.CloseOnEscape : RPopupTemplate.NoAutoClose

    ROverlayTemplate.modal: RDialogDim {}
}
