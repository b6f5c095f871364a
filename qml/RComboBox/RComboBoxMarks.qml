import QtQuick
import "../Shared"
import TambleClient.Control 1.0

/*! What tells that a combo box is mixed or not confirmed, as in fields. */
Item {
    id: root

    readonly property RComboBoxBase comboBox: root.parent as RComboBoxBase

    anchors.fill: parent
    visible: !root.comboBox.editable
    opacity: root.comboBox.enabled ? 1 : 0.5

    RStyleProbe {
        id: style
        type: "RTextField"
    }
    RConfirmDot {
        x: root.comboBox.mirrored ? 42 * RThemeValues.unit - width : root.width - 42 * RThemeValues.unit
        y: (root.height - height) / 2
        color: style.RStyleSet.props.confirmIndicator
        pulsing: !root.comboBox.confirmed
        visible: pulsing
    }
    RMixedFlag {
        x: root.comboBox.mirrored ? root.width - width : 0
        mirrored: root.comboBox.mirrored
        color: style.RStyleSet.props.inconsistentFlag
        visible: root.comboBox.mixed
    }
}
