import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! A line of a form with a text field. */
FieldLine {
    id: root

    property alias validator: input.validator
    property alias mustBeFilled: input.required
    property alias readOnly: input.readOnly

    editor: input

    RTextField {
        id: input
        width: parent.width
        label: root.title
        enabled: root.target.devices.length > 0
        value: root.source.shown
        consistent: root.source.consistent
        confirmed: root.source.confirmed
        errorText: root.source.errorText
        onValueEdited: value => root.source.request(value)
    }
}
