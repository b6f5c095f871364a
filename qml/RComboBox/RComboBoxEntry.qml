import QtQuick
import TambleClient.Control 1.0

/*! An entry in the open list of a combo box. */
RComboBoxEntryBase {
    id: root

    // The box is out of reach once its page begins to go.
    readonly property color textColor: !root.comboBox ? "transparent" : !root.highlighted ? root.comboBox.ssForegroundItem : root.current ? root.comboBox.ssForegroundItemSelected : root.comboBox.ssForegroundItemHover
    readonly property real textStart: (!root.comboBox || root.comboBox.iconRole === "" ? 12 : 36) * RThemeValues.unit

    width: ListView.view ? ListView.view.width : implicitWidth
    implicitWidth: words.implicitWidth + root.textStart + 12 * RThemeValues.unit
    implicitHeight: 32 * RThemeValues.unit
    hoverEnabled: true

    background: Rectangle { // qmllint disable deferred-property-id
        color: !root.comboBox ? "transparent" : !root.highlighted ? root.comboBox.ssBackgroundItem : root.current ? root.comboBox.ssBackgroundItemSelected : root.comboBox.ssBackgroundItemHover

        Rectangle {
            x: root.mirrored ? root.width - width : 0
            width: 4 * RThemeValues.unit
            height: root.height
            visible: root.current || root.highlighted
            color: !root.comboBox ? "transparent" : root.current ? root.comboBox.ssItemColorCurrent : root.comboBox.ssItemColorHover
        }
    }

    RText {
        id: words
        x: root.mirrored ? 12 * RThemeValues.unit : root.textStart
        width: root.width - root.textStart - 12 * RThemeValues.unit
        height: root.height
        text: root.entryText
        color: root.textColor
        opacity: root.enabled ? 1 : 0.4
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }
}
