import QtQuick
import TambleClient.Control 1.0

/*! A device or a loudspeaker on the plan, as a row of the plan's model. */
RWorkspaceItem {
    id: root

    required property string blockId
    required property string kind
    required property point place
    required property string area
    required property string status
    required property string alarm
    required property double value
    required property double from
    required property double to
    required property double limit
    required property string valueText

    required title
    required locked

    // The tools do not know the type of the id.
    itemId: root.blockId // qmllint disable
    position: root.place
    // Devices have names of people's own.
    size: root.kind === "loudspeaker" ? Qt.size(96, 64) : Qt.size(160, 64)
    iconKey: root.kind
    statusIconKey: root.status
    // qmllint disable unqualified
    valueBar: RWorkspaceItemValueBar {
        from: root.from
        to: root.to
        value: root.value
        delimiterValue: root.limit
        alarm: root.alarm.length > 0
        text: root.valueText
    }
    contentComponent: RText {
        leftPadding: 8 * RThemeValues.unit
        rightPadding: 8 * RThemeValues.unit
        width: root.width
        // Nothing is laid out that nobody sees.
        text: !visible ? "" : root.alarm.length > 0 ? root.alarm : root.valueText
        color: root.ssColor
        elide: Text.ElideRight
        font.bold: root.alarm.length > 0
    }
    // qmllint enable unqualified
}
