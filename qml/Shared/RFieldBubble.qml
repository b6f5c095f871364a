import QtQuick
import TambleClient.Control 1.0

/*! What a field tells whoever types into it: below it, or above where the window ends. */
RPopupTemplate {
    id: root

    required property Item field
    required property RFieldEdit edit

    readonly property real gap: 4 * RThemeValues.unit
    readonly property real widest: Math.min(320 * RThemeValues.unit, root.field.Window.width - 2 * root.margins)
    // Measured anew with each text, since nothing tells where in the window a field is.
    readonly property bool fitsBelow: root.edit.bubbleText !== "" &&
                                      root.field.mapToItem(null, 0, root.field.height).y + root.gap + root.height + root.margins <= root.field.Window.height

    objectName: "bubble"
    y: root.fitsBelow ? root.field.height + root.gap : -root.height - root.gap
    implicitWidth: Math.min(words.implicitWidth, root.widest)
    implicitHeight: words.implicitHeight
    margins: 8 * RThemeValues.unit
    padding: 0
    closePolicy: RPopupTemplate.NoAutoClose
    visible: root.edit.bubbleText !== "" && root.field.visible

    contentItem: RPopupFrame { // qmllint disable deferred-property-id
        id: frame
        Accessible.role: Accessible.AlertMessage
        Accessible.name: words.text

        RText {
            id: words
            width: Math.min(words.implicitWidth, root.widest)
            padding: 6 * RThemeValues.unit
            wrapMode: Text.Wrap
            text: root.edit.bubbleText
            color: frame.ssForegroundItem
            font.pixelSize: RThemeValues.fontSizeS
        }
    }
}
