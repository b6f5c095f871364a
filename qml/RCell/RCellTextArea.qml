import QtQuick
import TambleClient.Control 1.0

/*! Cell with several lines of text. While it is edited, Enter makes a new line and Ctrl+Enter confirms. */
RCell {
    id: root

    /*! Of the text area: `value`, `text`, `errorText`, `confirmed`, `consistent`, `settleTime`. */
    property alias value: area.value
    property alias text: area.text
    property alias errorText: area.errorText
    property alias confirmed: area.confirmed
    property alias consistent: area.consistent
    property alias settleTime: area.settleTime

    /*! `valueEdited` and `valueCommitted`, together: the user has entered this. */
    signal valueEdited(var value)
    signal valueCommitted(var value)

    /*! What the device says, or what is typed. */
    function cellText(): string {
        return area.text
    }
    /*! Enters a text as if it had been typed. */
    function takeText(text: string): string {
        return area.textArea.edit.enterText(text)
    }

    control: area
    multiLine: true

    RTextArea {
        id: area
        readOnly: root.locked
        onValueEdited: value => root.valueEdited(value)
        onValueCommitted: value => root.valueCommitted(value)
    }
}
