import QtQuick
import TambleClient.Control 1.0

/*! Button that chooses a main page. A click emits `clicked`; the page sets `selected`. */
RAppBarNavButtonBase {
    id: root

    RStyleSet.typeName: "RAppBarNavButton"

    /*! The item that shows the text. */
    property alias textControl: words

    ssBackground: root.sheetBackground
    ssColor: root.sheetColor
    ssLineColor: root.sheetLineColor
    ssLineVisible: root.sheetLineVisible

    RStyleSet.stateHelper.pressed: root.down

    unit: RThemeValues.unit
    wordsWidth: words.implicitWidth
    hoverEnabled: RThemeValues.hoverEnabled
    focusPolicy: Qt.StrongFocus

    background: RControlBackground { // qmllint disable deferred-property-id
        color: root.ssBackground
        lineVisible: root.ssLineVisible
        focusVisible: root.RStyleSet.stateHelper.focus
    }
    // A bare Text, which costs less than the component.
    contentItem: Text { // qmllint disable deferred-property-id
        id: words
        visible: !root.textHidden
        text: root.plainText
        color: root.ssColor
        // Text without elision is not laid out anew with each change of the size.
        elide: root.cramped ? Text.ElideRight : Text.ElideNone
        font.family: RThemeValues.fontFamily
        font.pixelSize: RThemeValues.fontSizeM
        renderType: RThemeValues.renderType
        textFormat: Text.PlainText
        horizontalAlignment: Text.AlignHCenter
        verticalAlignment: Text.AlignVCenter
    }
}
