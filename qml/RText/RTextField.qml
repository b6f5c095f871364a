import QtQuick
import TambleClient.Control 1.0
import "../Shared" as Shared

/*! One line of text that a device stores. What is typed is marked until it is entered; see RTextFieldBase. */
RTextFieldBase {
    id: root

    /*! What the field is called, for people who cannot see it. */
    property string label: ""

    property color ssBackground: root.RStyleSet.props.background
    property color ssColor: root.RStyleSet.props.foreground
    property color ssForegroundInvalid: root.RStyleSet.props.isSet("foreground-invalid") ? root.RStyleSet.props.foregroundInvalid : root.RStyleSet.props.lineInvalid
    property color ssLineColor: root.RStyleSet.props.line
    property color ssLineInvalid: root.RStyleSet.props.isSet("line-invalid") ? root.RStyleSet.props.lineInvalid : root.ssForegroundInvalid
    property color ssLineUnconfirmed: root.RStyleSet.props.isSet("line-unconfirmed") ? root.RStyleSet.props.lineUnconfirmed : root.ssLineColor
    property color ssBorderColor: root.RStyleSet.props.isSet("border") ? root.RStyleSet.props.border : "transparent"
    property color ssSelection: root.RStyleSet.props.selection
    property color ssForegroundSelection: root.RStyleSet.props.foregroundSelection
    property color ssConfirmIndicator: root.RStyleSet.props.confirmIndicator
    property color ssInconsistentFlag: root.RStyleSet.props.inconsistentFlag

    RStyleSet.typeName: "RTextField"
    RStyleSet.stateHelper.hovered: root.hovered
    RStyleSet.stateHelper.disabled: !root.enabled
    RStyleSet.stateHelper.focus: root.activeFocus
    RStyleSet.stateHelper.readOnly: root.readOnly
    RStyleSet.stateHelper.inconsistent: !root.consistent

    implicitWidth: 144 * RThemeValues.unit
    implicitHeight: 32 * RThemeValues.unit
    leftPadding: 8 * RThemeValues.unit
    rightPadding: (marks.visible ? 24 : 8) * RThemeValues.unit
    color: root.acceptable ? root.ssColor : root.ssForegroundInvalid
    selectionColor: root.ssSelection
    selectedTextColor: root.ssForegroundSelection
    placeholderText: root.consistent ? "" : qsTr("mixed")
    placeholderTextColor: root.ssColor
    font.family: RThemeValues.fontFamily
    font.pixelSize: RThemeValues.fontSizeM
    renderType: RThemeValues.renderType
    verticalAlignment: TextInput.AlignVCenter
    hoverEnabled: RThemeValues.hoverEnabled
    activeFocusOnTab: true
    selectByMouse: true

    background: Shared.RFieldFrame {
        color: root.ssBackground
        border.color: root.ssBorderColor
        border.width: root.activeFocus ? RThemeValues.unit : 0
        lineColor: !root.acceptable ? root.ssLineInvalid : root.edited || !root.confirmed ? root.ssLineUnconfirmed : root.ssLineColor
        lineWidth: (root.activeFocus ? 2 : 1) * RThemeValues.unit
    }

    Shared.RFieldMarks {
        id: marks
        anchors.fill: parent
        visible: root.edited || !root.confirmed || !root.consistent || !root.acceptable
        unentered: root.edited
        confirmed: root.confirmed
        consistent: root.consistent
        invalid: !root.acceptable
        dotColor: root.ssConfirmIndicator
        flagColor: root.ssInconsistentFlag
        warningColor: root.ssForegroundInvalid
    }
}
