import QtQuick
import TambleClient.Control 1.0

/*! Tab with a text. Choosing is the page's: a click emits `clicked`, and turns `selected` over only where the tab is
    `selectable`. */
RStyledTab {
    id: root

    /*! The item that shows the text. */
    property alias textControl: words

    // A bare Text, which costs less than the component.
    contentItem: Text { // qmllint disable deferred-property-id
        id: words
        text: root.plainText
        color: root.ssColor
        opacity: root.enabled ? 1 : 0.5
        elide: Text.ElideRight
        font.family: RThemeValues.fontFamily
        font.pixelSize: RThemeValues.fontSizeM
        renderType: RThemeValues.renderType
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
}
