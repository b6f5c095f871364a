import QtQuick
import TambleClient.Control 1.0

/*! What stands in an empty field: its placeholder, or "mixed". */
RText {
    id: root

    required property TextInput field

    x: root.field.leftPadding
    y: root.field.topPadding
    width: root.field.width - root.field.leftPadding - root.field.rightPadding
    height: root.field.height - root.field.topPadding - root.field.bottomPadding
    text: root.field["consistent"] === false ? qsTr("mixed") : root.field["placeholderText"]
    color: root.field.color
    opacity: 0.6
    font: root.field.font
    elide: Text.ElideRight
    horizontalAlignment: root.field.effectiveHorizontalAlignment
    verticalAlignment: Text.AlignVCenter
    visible: root.field.length === 0 && root.field.preeditText === ""
    Accessible.ignored: true
}
