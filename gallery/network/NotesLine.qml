import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! A line of a form with room for several lines of text. */
FieldLine {
    id: root

    editor: input

    RTextArea {
        id: input
        width: parent.width
        label: root.title
        enabled: root.target.devices.length > 0
        maximumLines: 4
        value: root.source.shown
        consistent: root.source.consistent
        confirmed: root.source.confirmed
        errorText: root.source.errorText
        onValueEdited: value => root.source.request(value)
    }
}
