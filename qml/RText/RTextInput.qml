import QtQuick
import TambleClient.Control 1.0

/*! Bare editor of one line, for use inside other controls; these bind `color` to their own. */
TextInput {
    id: root

    /*! Shows the text in the colour of invalid ones. */
    property bool invalid: false
    /*! Text shown while there is none. */
    property string placeholderText: ""

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
    Accessible.role: Accessible.EditableText
    Accessible.name: root.placeholderText

    RText {
        width: root.width
        height: root.height
        text: root.placeholderText
        color: root.color
        opacity: 0.6
        elide: Text.ElideRight
        horizontalAlignment: root.effectiveHorizontalAlignment
        verticalAlignment: Text.AlignVCenter
        visible: root.length === 0 && root.preeditText === ""
        Accessible.ignored: true
    }
}
