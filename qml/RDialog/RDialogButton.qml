import QtQuick
import TambleClient.Control 1.0

/*! Standard button of a dialog. */
RButton {
    id: root

    /*! Most that it may be wide, in pixels. */
    property real widest: Infinity
    /*! Whether Enter presses it though it does not have the focus. */
    property bool pressedByEnter: false

    RStyleSet.stateHelper.focus: root.activeFocus || root.pressedByEnter

    implicitWidth: Math.min(root.widest, Math.max(96 * RThemeValues.unit, Math.ceil(root.implicitTextWidth) + 24 * RThemeValues.unit))
    // A press leaves the focus to the field, whose unacceptable text then holds the dialog.
    focusPolicy: Qt.TabFocus
    enterClicks: true
}
