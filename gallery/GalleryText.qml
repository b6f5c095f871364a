import QtQuick

/*! Text of the gallery's own frame. */
Text {
    color: GalleryPalette.text
    font.family: "Brack Office Sans"
    font.pixelSize: 14
    textFormat: Text.PlainText
}
