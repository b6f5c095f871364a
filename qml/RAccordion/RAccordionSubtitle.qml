import QtQuick
import TambleClient.Control 1.0

/*! The second line in the header of a section. */
RText {
    id: root

    required property RAccordionItemBase item

    text: root.item.subtitle
    color: root.item.ssColor
    font.pixelSize: RThemeValues.fontSizeXS
    elide: Text.ElideRight
    horizontalAlignment: Text.AlignLeft
    verticalAlignment: Text.AlignTop
}
