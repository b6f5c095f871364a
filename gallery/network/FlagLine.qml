import QtQuick
import Gallery
import TambleClient.Control 1.0

/*! A line of a form with a check box. */
FieldLine {
    id: root

    editor: input

    RCheckBox {
        id: input
        enabled: root.target.devices.length > 0
        selected: Boolean(root.source.shown)
        consistent: root.source.consistent
        confirmed: root.source.confirmed
        onSelectionEdited: selected => root.source.request(selected)
    }
}
