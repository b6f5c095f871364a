import QtQuick
import TambleClient.Control 1.0

/*! Cell with a text field. */
RCell {
    id: root

    /*! Of the field: `value`, `text`, `validator`, `converter`, `errorText`, `confirmed`, `consistent`,
        `required`, `maximumBytes`, `settleTime`, `horizontalAlignment`. */
    property alias value: field.value
    property alias text: field.text
    property alias validator: field.validator
    property alias converter: field.converter
    property alias errorText: field.errorText
    property alias confirmed: field.confirmed
    property alias consistent: field.consistent
    property alias required: field.required
    property alias maximumBytes: field.maximumBytes
    property alias settleTime: field.settleTime
    property alias horizontalAlignment: field.horizontalAlignment

    /*! `valueEdited` and `valueCommitted`, together: the user has entered this. */
    signal valueEdited(var value)
    signal valueCommitted(var value)

    /*! What the device says, or what is typed. */
    function cellText(): string {
        return field.text
    }
    /*! Enters a text as if it had been typed. */
    function takeText(text: string): string {
        return field.edit.enterText(text)
    }

    control: field

    RTextField {
        id: field
        readOnly: root.locked
        onValueEdited: value => root.valueEdited(value)
        onValueCommitted: value => root.valueCommitted(value)
    }
}
