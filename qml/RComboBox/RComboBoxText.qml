import QtQuick
import TambleClient.Control 1.0

/*! What a combo box shows that is not typed into, in the colours of a field. */
RText {
    id: root

    required property RComboBoxBase comboBox

    readonly property bool chosen: root.comboBox.shownText !== ""

    RStyleSet.typeName: "RTextField"
    RStyleSet.stateHelper.disabled: !root.comboBox.enabled

    leftPadding: 8 * RThemeValues.unit
    rightPadding: (root.comboBox.confirmed ? 4 : 20) * RThemeValues.unit
    text: root.chosen ? root.comboBox.shownText : root.comboBox.mixed ? qsTr("mixed") : root.comboBox.placeholderText
    opacity: root.chosen ? 1 : 0.6
    elide: Text.ElideRight
    verticalAlignment: Text.AlignVCenter
}
