import QtQuick
import TambleClient.Control 1.0

/*! Bare editor of one line, for use inside other controls; these bind `color` to their own. */
RTextInputBase {
    id: root

    /*! Shows the text in the colour of invalid ones. */
    property bool invalid: false

    color: root.invalid ? root.ssForegroundInvalid : root.ssColor
    selectionColor: root.ssSelection
    selectedTextColor: root.color
    font.family: RThemeValues.fontFamily
    font.pixelSize: RThemeValues.fontSizeM
    renderType: RThemeValues.renderType
    selectByMouse: true
    activeFocusOnTab: true
    clip: true
    verticalAlignment: TextInput.AlignVCenter
}
