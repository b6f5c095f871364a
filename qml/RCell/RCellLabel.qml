import QtQuick
import TambleClient.Control 1.0

/*! Cell that names others: a bold caption, which the current cell passes over. */
RCell {
    id: root

    /*! Of the caption: `text`, `buddy`, `lineVisible`, `horizontalAlignment`. */
    property alias text: caption.text
    property alias buddy: caption.buddy
    property alias lineVisible: caption.lineVisible
    property alias horizontalAlignment: caption.horizontalAlignment

    /*! The caption. */
    function cellText(): string {
        return caption.plainCaption
    }

    control: caption
    selectable: false

    RLabel {
        id: caption
        leftPadding: 4 * RThemeValues.unit
        rightPadding: 4 * RThemeValues.unit
        lineVisible: true
        font.bold: true
    }
}
