import QtQuick
import TambleClient.Control 1.0

/*! What is typed into in an editable combo box. */
RTextField {
    id: root

    readonly property RComboBoxBase comboBox: root.parent as RComboBoxBase

    RStyleSet.stateHelper.disabled: !root.comboBox.enabled

    enabled: root.comboBox.editable
    readOnly: !root.comboBox.editable || root.comboBox.readOnly
    activeFocusOnTab: false
    autoScroll: root.comboBox.editable
    value: root.comboBox.mixed ? "" : root.comboBox.currentIndex >= 0 ? root.comboBox.currentText : root.comboBox.otherText
    // What was typed is the box's to show from then on.
    settleTime: 0
    consistent: !root.comboBox.mixed
    confirmed: root.comboBox.confirmed
    placeholderText: root.comboBox.placeholderText
    validator: root.comboBox.validator
    inputMethodHints: root.comboBox.inputMethodHints
    background: null
}
