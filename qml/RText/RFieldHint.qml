import QtQuick
import TambleClient.Control 1.0

/*! What stands in an empty field: its placeholder, or "mixed". */
RText {
    id: root

    // A TextInput or a TextEdit.
    required property var field

    // The alignment of the field is mirrored already.
    LayoutMirroring.enabled: false

    x: root.field.leftPadding
    y: root.field.topPadding
    width: root.field.width - root.field.leftPadding - root.field.rightPadding
    height: root.field.height - root.field.topPadding - root.field.bottomPadding
    text: root.field.edit?.consistent === false ? qsTr("mixed") : root.field.placeholderText
    color: root.field.color
    opacity: 0.6
    font: root.field.font
    elide: Text.ElideRight
    horizontalAlignment: root.field.effectiveHorizontalAlignment
    verticalAlignment: root.field.verticalAlignment
    visible: root.field.length === 0 && root.field.preeditText === ""
    Accessible.ignored: true
}
