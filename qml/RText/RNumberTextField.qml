import QtQuick
import TambleClient.Control 1.0

/*! Typed number without step buttons. `value` holds a number, or nothing. */
RTextField {
    id: root

    /*! The range, `from` and `to`; infinite, the default, for no bound. */
    property alias from: steps.from
    property alias to: steps.to
    /*! One step by key or wheel; 0, the default, for none. `fineStepSize` is a tenth of it and `pageStepSize` ten of it, unless
        they are set. */
    property alias stepSize: steps.stepSize
    property alias fineStepSize: steps.fineStepSize
    property alias pageStepSize: steps.pageStepSize
    property alias defaultValue: steps.defaultValue
    /*! Decimals that are shown, and that steps are rounded to; 2 by default, -1 for those that the steps need. */
    property alias decimals: steps.decimals
    property alias minimumText: steps.minimumText
    property alias snapToStep: steps.snapToStep
    property alias live: steps.live
    /*! Whether the wheel steps, and with `wheelNeedsFocus` only while the field has the focus; both are true by default. */
    property alias wheelEnabled: steps.wheelEnabled
    property alias wheelNeedsFocus: steps.wheelNeedsFocus
    /*! Drawn behind the number, not part of what is typed; none by default. */
    property alias unit: unit.text

    /*! Pixels that the marks at the end take: none for the flag of a mixed one, which has the corner. */
    readonly property real marksWidth: (root.edit.edited || !root.edit.confirmed || !root.edit.acceptable ? 16 : 0) * RThemeValues.unit

    horizontalAlignment: TextInput.AlignRight
    inputMethodHints: Qt.ImhFormattedNumbersOnly
    rightPadding: 8 * RThemeValues.unit + root.marksWidth + (unit.visible ? unit.implicitWidth + 4 * RThemeValues.unit : 0)

    RNumberSteps {
        id: steps
        edit: root.edit
        stepSize: 0
        decimals: 2
        stepping: Math.abs(steps.stepSize) > 0 && !root.readOnly
    }
    RText {
        id: unit
        x: root.effectiveHorizontalAlignment === TextInput.AlignLeft ? Math.min(root.leftPadding + root.contentWidth, root.width - root.rightPadding) + 4 * RThemeValues.unit : root.width - unit.implicitWidth - 8 * RThemeValues.unit - root.marksWidth
        height: root.height
        color: root.color
        verticalAlignment: Text.AlignVCenter
        visible: root.consistent && unit.text !== ""
        Accessible.ignored: true
    }
}
