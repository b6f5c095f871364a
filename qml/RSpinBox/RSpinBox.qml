import QtQuick
import TambleClient.Control 1.0

/*! Number with steps. A step is told at once, a typed number when it is entered. */
RSpinBoxBase {
    id: root

    edit: RFieldEdit {
        id: edit
        field: root
        editor: input
        value: 0
    }
    steps: RNumberSteps {
        id: steps
        edit: edit
        from: 0
        to: 100
        stepping: !root.readOnly
        wheelEnabled: root.wheelEnabled
    }

    /*! What the device or model says; 0 by default. */
    property alias value: edit.value
    /*! The range: `from` is 0 and `to` 100 by default. */
    property alias from: steps.from
    property alias to: steps.to
    /*! The range as assistive tools ask for it: `minimumValue`, `maximumValue`. */
    readonly property alias minimumValue: steps.from
    readonly property alias maximumValue: steps.to
    /*! One step: 1 by default, 0 for 1 % of the range. `fineStepSize` is a tenth of it and `pageStepSize` ten of it, unless
        they are set. */
    property alias stepSize: steps.stepSize
    property alias fineStepSize: steps.fineStepSize
    property alias pageStepSize: steps.pageStepSize
    property alias defaultValue: steps.defaultValue
    property alias decimals: steps.decimals
    property alias minimumText: steps.minimumText
    property alias wrap: steps.wrap
    property alias snapToStep: steps.snapToStep
    property alias live: steps.live
    /*! Whether the wheel steps only while the box has the focus; true by default. */
    property alias wheelNeedsFocus: steps.wheelNeedsFocus
    /*! What is typed, without `prefix` and `suffix`. */
    readonly property alias text: input.text
    /*! What stands in an empty box. */
    property string placeholderText: ""
    /*! Shows, selects and copies, never edits; false by default. */
    property alias readOnly: input.readOnly
    /*! Whether a gesture of steps or a text that is not entered yet is under way. */
    readonly property bool editing: edit.edited || root.pressedButton !== 0
    property alias edited: edit.edited
    property alias acceptable: edit.acceptable
    property alias invalidText: edit.invalidText
    property alias errorText: edit.errorText
    property alias commitOnFocusLoss: edit.commitOnFocusLoss
    property alias confirmed: edit.confirmed
    property alias consistent: edit.consistent
    property alias settleTime: edit.settleTime
    property alias converter: edit.converter

    /*! Room at the end that the marks leave free, in pixels. */
    readonly property real marksInset: root.buttonsVisible ? 2 * root.buttonWidth : 0

    RStyleSet.typeName: "RSpinBox"
    RStyleSet.stateHelper.hovered: root.hovered
    RStyleSet.stateHelper.disabled: !root.enabled
    RStyleSet.stateHelper.focus: input.activeFocus
    RStyleSet.stateHelper.readOnly: input.readOnly
    RStyleSet.stateHelper.inconsistent: !edit.consistent

    opacity: root.enabled ? 1 : 0.5
    implicitWidth: 144 * RThemeValues.unit
    implicitHeight: 32 * RThemeValues.unit
    unit: RThemeValues.unit
    hoverEnabled: RThemeValues.hoverEnabled

    background: RFieldFrame { // qmllint disable deferred-property-id
        unit: RThemeValues.unit
    }

    RTextInput {
        id: input
        x: root.mirrored ? root.width - input.width : 0
        width: root.width - (root.buttonsVisible ? 2 * root.buttonWidth : 0)
        height: root.height
        leftPadding: (edit.marked && root.mirrored ? 24 : 8) * RThemeValues.unit
        rightPadding: (edit.marked && !root.mirrored ? 24 : 4) * RThemeValues.unit
        focus: true
        color: edit.acceptable ? root.ssColor : root.ssForegroundInvalid
        selectionColor: root.ssSelection
        selectedTextColor: root.ssForegroundSelection
        placeholderText: edit.consistent ? root.placeholderText : qsTr("mixed")
        inputMethodHints: Qt.ImhFormattedNumbersOnly
    }
}
