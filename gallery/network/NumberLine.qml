import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! A line of a form with a field for a number. */
FieldLine {
    id: root

    property alias unit: input.unit
    property alias decimals: input.decimals
    property alias stepSize: input.stepSize

    editor: input

    RNumberTextField {
        id: input
        width: parent.width
        label: root.title
        enabled: root.target.devices.length > 0
        from: root.source.minimum
        to: root.source.maximum
        value: root.source.shown
        consistent: root.source.consistent
        confirmed: root.source.confirmed
        errorText: root.source.errorText
        onValueEdited: value => root.source.request(value)
    }
}
