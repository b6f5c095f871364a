import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! Several lines of text that a device stores. What is typed is marked until it is entered.

    Keys: Enter makes a new line, Ctrl+Enter enters the text, Esc takes back what was typed. Undo and Redo are
    the area's while something is typed, else the page's. */
RScrollView {
    id: root

    /*! The editor. */
    readonly property alias textArea: area
    /*! What is typed. */
    property alias text: area.text
    /*! What stands in an empty field. */
    property alias placeholderText: area.placeholderText
    property alias label: area.label
    /*! Shows, selects and copies, never edits; false by default. */
    property alias readOnly: area.readOnly
    /*! How long lines are broken: `TextEdit.Wrap` by default. */
    property alias wrapMode: area.wrapMode
    property alias tabChangesFocus: area.tabChangesFocus
    property alias value: edit.value
    property alias edited: edit.edited
    /*! Whether something was typed that is not entered yet. */
    property alias editing: edit.edited
    property alias acceptable: edit.acceptable
    property alias invalidText: edit.invalidText
    property alias errorText: edit.errorText
    property alias required: edit.required
    property alias maximumBytes: edit.maximumBytes
    property alias maximumLines: edit.maximumLines
    property alias trim: edit.trim
    property alias commitOnFocusLoss: edit.commitOnFocusLoss
    property alias confirmed: edit.confirmed
    property alias consistent: edit.consistent
    property alias settleTime: edit.settleTime
    property alias converter: edit.converter

    /*! `valueEdited` and `valueCommitted`, together: the user has entered this. */
    signal valueEdited(value: var)
    signal valueCommitted(value: var)
    /*! What was typed was taken back. */
    signal editCanceled()
    /*! Ctrl+Enter was pressed on a text that is not acceptable. */
    signal rejected(text: string, reason: string)

    /*! Room at the end that the marks leave free, in pixels: that of the scroll bar. */
    readonly property real marksInset: root.contentHeight > root.height ? 8 * RThemeValues.unit : 0

    property color ssBackground: root.RStyleSet.props.background
    property color ssColor: root.RStyleSet.props.foreground
    property color ssForegroundInvalid: root.RStyleSet.props.foregroundInvalid
    property color ssLineColor: root.RStyleSet.props.line
    property color ssBorderColor: root.RStyleSet.props.isSet("border") ? root.RStyleSet.props.border : "transparent"
    property color ssSelection: root.RStyleSet.props.selection
    property color ssForegroundSelection: root.RStyleSet.props.foregroundSelection
    property color ssConfirmIndicator: root.RStyleSet.props.confirmIndicator
    property color ssInconsistentFlag: root.RStyleSet.props.inconsistentFlag

    RStyleSet.typeName: "RTextArea"
    RStyleSet.stateHelper.hovered: root.hovered
    RStyleSet.stateHelper.disabled: !root.enabled
    RStyleSet.stateHelper.focus: area.activeFocus
    RStyleSet.stateHelper.readOnly: area.readOnly
    RStyleSet.stateHelper.inconsistent: !edit.consistent

    opacity: root.enabled ? 1 : 0.5
    implicitWidth: 288 * RThemeValues.unit
    implicitHeight: 96 * RThemeValues.unit
    hoverEnabled: RThemeValues.hoverEnabled

    background: RFieldFrame { // qmllint disable deferred-property-id
        unit: RThemeValues.unit
        focused: area.activeFocus
        color: root.ssBackground
        borderColor: root.ssBorderColor
        lineColor: !edit.acceptable ? root.ssForegroundInvalid : edit.edited || !edit.confirmed ? root.ssConfirmIndicator : root.ssLineColor
    }

    RTextAreaBase {
        id: area
        edit: RFieldEdit {
            id: edit
            field: root
            editor: area
            onValueEdited: (value) => root.valueEdited(value)
            onValueCommitted: (value) => root.valueCommitted(value)
            onCanceled: root.editCanceled()
            onRejected: (text, reason) => root.rejected(text, reason)
        }
        focus: true
        implicitHeight: area.contentHeight + area.topPadding + area.bottomPadding
        // Room for the marks at all times: lines must not break elsewhere at the first key.
        leftPadding: (root.mirrored ? 28 : 8) * RThemeValues.unit
        rightPadding: (root.mirrored ? 8 : 28) * RThemeValues.unit
        topPadding: 6 * RThemeValues.unit
        bottomPadding: 6 * RThemeValues.unit
        color: edit.acceptable ? root.ssColor : root.ssForegroundInvalid
        selectionColor: root.ssSelection
        selectedTextColor: root.ssForegroundSelection
        placeholderTextColor: root.ssColor
        font.family: RThemeValues.fontFamily
        font.pixelSize: RThemeValues.fontSizeM
        renderType: RThemeValues.renderType
        textFormat: TextEdit.PlainText
        wrapMode: TextEdit.Wrap
        tabChangesFocus: true
        activeFocusOnTab: true
        selectByMouse: true
    }
}
