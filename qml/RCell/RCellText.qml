import QtQuick
import TambleClient.Control 1.0

/*! Cell with a text that is only read. */
RCell {
    id: root

    /*! Of the text: `text`, `horizontalAlignment` (numbers stand at the right), `elide`. */
    property alias text: words.text
    property alias horizontalAlignment: words.horizontalAlignment
    property alias elide: words.elide

    /*! The text. */
    function cellText(): string {
        return words.text
    }

    control: words
    controlPadded: true

    RText {
        id: words
        elide: Text.ElideRight
        verticalAlignment: Text.AlignVCenter
    }
}
