import QtQuick
import TambleClient.Control 1.0

/*! The icon in the header of a section. */
RIcon {
    id: root

    required property RAccordionItemBase item

    key: root.item.iconKey
    ssIconForeground: root.item.ssColor
}
