import QtQuick
import TambleClient.Control 1.0

/*! One line of text that a device stores. What is typed is marked until it is entered.

    Keys: Enter enters the text, Esc takes back what was typed. Undo and Redo are the field's while something is typed,
    else the page's. */
RTextFieldBase {
    id: root

    edit: RFieldEdit {
        id: edit
        field: root
        editor: root
    }

    property alias value: edit.value
    property alias edited: edit.edited
    /*! Whether something was typed that is not entered yet. */
    property alias editing: edit.edited
    property alias acceptable: edit.acceptable
    property alias invalidText: edit.invalidText
    property alias errorText: edit.errorText
    property alias required: edit.required
    property alias maximumBytes: edit.maximumBytes
    property alias trim: edit.trim
    property alias commitOnFocusLoss: edit.commitOnFocusLoss
    property alias confirmed: edit.confirmed
    property alias consistent: edit.consistent
    property alias settleTime: edit.settleTime
    property alias converter: edit.converter

    /*! Whether the sides are swapped. Asked only where something stands beside the text, since the attached object is not
        for free. */
    readonly property bool turned: (edit.marked || root.iconKey !== "" || root.clearable || root.revealable) && root.LayoutMirroring.enabled
    /*! Room behind the text, in pixels. */
    readonly property real endPadding: (8 + (edit.marked ? 16 : 0) + (root.clearable ? 32 : 0) + (root.revealable ? 32 : 0)) * RThemeValues.unit

    RStyleSet.typeName: "RTextField"
    RStyleSet.stateHelper.hovered: root.hovered
    RStyleSet.stateHelper.disabled: !root.enabled
    RStyleSet.stateHelper.focus: root.activeFocus
    RStyleSet.stateHelper.readOnly: root.readOnly
    RStyleSet.stateHelper.inconsistent: !edit.consistent

    opacity: root.enabled ? 1 : 0.5
    implicitWidth: 144 * RThemeValues.unit
    implicitHeight: 32 * RThemeValues.unit
    leftPadding: root.turned ? root.endPadding : (root.iconKey !== "" ? 32 : 8) * RThemeValues.unit
    rightPadding: !root.turned ? root.endPadding : (root.iconKey !== "" ? 32 : 8) * RThemeValues.unit
    color: edit.acceptable ? root.ssColor : root.ssForegroundInvalid
    selectionColor: root.ssSelection
    selectedTextColor: root.ssForegroundSelection
    placeholderText: edit.consistent ? "" : qsTr("mixed")
    font.family: RThemeValues.fontFamily
    font.pixelSize: RThemeValues.fontSizeM
    renderType: RThemeValues.renderType
    verticalAlignment: TextInput.AlignVCenter
    hoverEnabled: RThemeValues.hoverEnabled
    activeFocusOnTab: true
    selectByMouse: true

    background: RFieldFrame { // qmllint disable deferred-property-id
        unit: RThemeValues.unit
    }
}
