import QtQuick
import TambleClient.Control 1.0

/*! One of a list, which a device stores; see RComboBoxBase. An editable one takes typed texts as well. */
RComboBoxBase {
    id: root

    RStyleSet.typeName: "RComboBox"

    RStyleSet.stateHelper.hovered: root.hovered
    RStyleSet.stateHelper.pressed: root.pressed
    RStyleSet.stateHelper.disabled: !root.enabled
    RStyleSet.stateHelper.readOnly: root.readOnly
    RStyleSet.stateHelper.inconsistent: !root.consistent
    RStyleSet.stateHelper.focus: root.activeFocus

    implicitWidth: 144 * RThemeValues.unit
    implicitHeight: 32 * RThemeValues.unit
    leftPadding: root.mirrored ? 32 * RThemeValues.unit : 0
    rightPadding: root.mirrored ? 0 : 32 * RThemeValues.unit
    hoverEnabled: RThemeValues.hoverEnabled
    focusPolicy: Qt.StrongFocus

    delegate: RComboBoxEntry {}

    onActivated: index => root.editTo(index)
    onEditableChanged: root.needField()
    onDelegateModelChanged: root.watchModel()
    onModelChanged: root.followModel()

    // In the colours of a field, as which the sheets know it. An editable box has a real one in its place.
    contentItem: RText { // qmllint disable deferred-property-id
        RStyleSet.typeName: "RTextField"
        RStyleSet.stateHelper.disabled: !root.enabled

        leftPadding: (!root.confirmed && root.mirrored ? 20 : 8) * RThemeValues.unit
        rightPadding: (!root.confirmed && !root.mirrored ? 20 : 4) * RThemeValues.unit
        text: root.mixed ? qsTr("mixed") : root.displayText !== "" ? root.displayText : root.otherText !== "" ? root.otherText : root.placeholderText
        opacity: root.mixed || (root.displayText === "" && root.otherText === "") ? 0.6 : 1
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }

    background: RControlBackground { // qmllint disable deferred-property-id
        color: root.ssBackground
        border.width: root.activeFocus ? RThemeValues.unit : 0
        border.color: root.visualFocus ? root.ssBorderColorFocus : root.ssBorderColor
        focusVisible: root.activeFocus && root.ssBorderColorFocus.a === 0

        Rectangle {
            y: root.height - height
            width: root.width
            height: (root.activeFocus ? 2 : 1) * RThemeValues.unit
            color: root.ssLineColor
            opacity: root.enabled ? 1 : 0.5
        }
    }

    indicator: RComboBoxIndicator { // qmllint disable deferred-property-id
        unit: RThemeValues.unit
        // Within the focus frame and above the line.
        x: root.mirrored ? RThemeValues.unit : root.width - width - RThemeValues.unit
        height: root.height - 3 * RThemeValues.unit
        color: root.hovered ? root.ssIndicatorBackgroundHover : root.ssIndicatorBackground
        arrowColor: root.ssColor
        opacity: root.enabled && !root.readOnly ? 1 : 0.4
    }

    popup: RComboBoxPopup { // qmllint disable deferred-property-id
        x: root.mirrored ? root.width - width : 0
        y: root.height
        width: Math.min(2 * root.width, Math.max(root.width, root.entryWidth + 2 * RThemeValues.unit))
        // Qt makes it lower where the window is.
        implicitHeight: Math.max(1, Math.min(root.count, root.maximumVisibleItems)) * 32 * RThemeValues.unit + 2 * RThemeValues.unit
        padding: 0
        margins: 8 * RThemeValues.unit

        // Without an id anywhere below, or the list would be made with the box.
        contentItem: RComboBoxList { // qmllint disable deferred-property-id
            comboBox: root
        }
    }
}
