import QtQuick
import TambleClient.Control 1.0

/*! Bare editor of one line, for use inside other controls; these bind `color` to their own. */
RTextInputBase {
    id: root

    /*! Shows the text in the colour of invalid ones. */
    property bool invalid: false

    property color ssColor: root.RStyleSet.props.foreground
    property color ssSelection: root.RStyleSet.props.selection
    property color ssForegroundInvalid: root.RStyleSet.props.isSet("foreground-invalid") ? root.RStyleSet.props.foregroundInvalid : root.ssColor

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
